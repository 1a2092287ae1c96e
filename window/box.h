// Message boxes: what one says, and what it can be answered with.
#pragma once

#include <string>
#include <string_view>
#include <vector>

enum class Icon { None, Information, Question, Exclamation, Critical };
enum class Buttons { OK, OKCancel, YesNo };
enum class Answer { OK, Cancel, Yes, No };

struct MessageBox {
  std::string text, title;
  Icon icon = Icon::None;
  Buttons buttons = Buttons::OK;
};

std::string_view IconName(Icon icon);        // "none", "information", ...
std::string_view AnswerName(Answer answer);  // "OK", "Cancel", "Yes", "No"
// The last one is what Escape and the close box mean.
std::vector<Answer> AnswersOf(Buttons buttons);
