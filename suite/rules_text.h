// The text of the rules window: paragraphs with named values in them, "{limit}", filled in when it opens.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct RulesParagraph {
  const char* text;
  int lineBreaks = 2;  // behind it, unless it is the last
};

// Values by their names in the text.
using RulesValues = std::vector<std::pair<std::string_view, std::string>>;

struct RulesText {
  int blanks;  // before the heading
  std::span<const RulesParagraph> paragraphs;
};

// The text with its values in place of "{name}"; in that of "{#name}" a number is grouped. Throws
// std::logic_error for a name that isn't among them.
std::string Fill(std::string_view text, const RulesValues& values);

// The whole page: heading and paragraphs.
std::string ComposeRules(const std::string& title, const RulesText& rules, const RulesValues& values);
