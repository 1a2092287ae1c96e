#include "games/sumfall/dialogs.h"
#include "window/guide.h"

namespace {

class SavedGameGuide : public Guide {
 public:
  explicit SavedGameGuide(SavedGameDialog& window) : window_(window) {}

  std::vector<Note> Notes() const override {
    const DirListBox& folders = window_.Dir1;
    const FileListBox& files = window_.File1;
    return {{&window_, folders.Left, folders.Top + folders.Height + 30,
             files.Left + files.Width - folders.Left, 180, "In " + folders.Path.get(), 0, Note::Look::Plain}};
  }

 private:
  SavedGameDialog& window_;
};

}  // namespace

std::unique_ptr<Guide> GuideTo(SavedGameDialog& window) { return std::make_unique<SavedGameGuide>(window); }
