#include "games/guides.h"

#include "games/sumfall/guide.h"
#include "suite/guide.h"

namespace {

template <class Window>
std::unique_ptr<Guide> Try(Form& form) {
  auto* window = dynamic_cast<Window*>(&form);
  return window ? GuideTo(*window) : nullptr;
}

}  // namespace

std::unique_ptr<Guide> MakeGuide(Form& form) {
  for (const auto attempt : {SharedGuide, Try<frmSumfall>, Try<SavedGameDialog>})
    if (auto guide = attempt(form)) return guide;
  return nullptr;
}
