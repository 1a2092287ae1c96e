#include "suite/rules_text.h"

#include <algorithm>
#include <stdexcept>

#include "window/text.h"

std::string Fill(std::string_view text, const RulesValues& values) {
  std::string filled;
  while (true) {
    const size_t open = text.find('{');
    filled += text.substr(0, open);
    if (open == std::string_view::npos) return filled;
    const size_t close = text.find('}', open);
    std::string_view name = text.substr(open + 1, close - open - 1);
    const bool grouped = name.starts_with('#');
    if (grouped) name.remove_prefix(1);
    const auto value = std::ranges::find(values, name, &RulesValues::value_type::first);
    if (close == std::string_view::npos || value == values.end())
      throw std::logic_error("the rules name no value " + std::string(name));
    filled += grouped ? FormatNumber(std::stoll(value->second)) : value->second;
    text.remove_prefix(close + 1);
  }
}

std::string ComposeRules(const std::string& title, const RulesText& rules, const RulesValues& values) {
  const auto breaks = [](int count) {
    std::string text;
    while (count-- > 0) text += "\r\n";
    return text;
  };
  std::string page =
      breaks(1) + std::string(rules.blanks, ' ') + title + " Rules, Notes and Strategy" + breaks(2);
  for (const RulesParagraph& paragraph : rules.paragraphs) {
    page += Fill(paragraph.text, values);
    if (&paragraph != &rules.paragraphs.back()) page += breaks(paragraph.lineBreaks);
  }
  return page;
}
