#include "window/box.h"

std::string_view IconName(Icon icon) {
  static constexpr std::string_view kNames[] = {"none", "information", "question", "exclamation", "critical"};
  return kNames[static_cast<int>(icon)];
}

std::string_view AnswerName(Answer answer) {
  static constexpr std::string_view kNames[] = {"OK", "Cancel", "Yes", "No"};
  return kNames[static_cast<int>(answer)];
}

std::vector<Answer> AnswersOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::OKCancel:
      return {Answer::OK, Answer::Cancel};
    case Buttons::YesNo:
      return {Answer::Yes, Answer::No};
    default:
      return {Answer::OK};
  }
}
