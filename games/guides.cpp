#include "games/guides.h"

#include "games/blackrush/guide.h"
#include "games/duopick/guide.h"
#include "games/fivestack/guide.h"
#include "games/handgrid/guide.h"
#include "games/spirehold/guide.h"
#include "games/sumfall/guide.h"
#include "games/treyshift/guide.h"
#include "suite/guide.h"

namespace {

template <class Window>
std::unique_ptr<Guide> Try(Form& form) {
  auto* window = dynamic_cast<Window*>(&form);
  return window ? GuideTo(*window) : nullptr;
}

}  // namespace

std::unique_ptr<Guide> MakeGuide(Form& form) {
  for (const auto attempt :
       {SharedGuide, Try<frmSumfall>, Try<frmFivestack>, Try<frmBlackrush>, Try<frmSpirehold>,
        Try<frmDuopick>, Try<frmHandgrid>, Try<frmTreyshift>, Try<SavedGameDialog>})
    if (auto guide = attempt(form)) return guide;
  return nullptr;
}
