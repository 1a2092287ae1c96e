// Small text routines: numbers shown to the player, numbers read from text, blanks.
#pragma once

#include <string>
#include <string_view>

// "###,###,###,##0": grouped by commas, at least one digit, a minus sign below zero.
std::string FormatNumber(long long value);

// The number at the start of a text: blanks, a sign, digits and a decimal part; 0 if there is none.
// Letters end it, also those that other parsers take for an exponent.
double Val(std::string_view text);

// The text without the blanks at either end.
std::string_view Trim(std::string_view text);

// A whole text as one number without blanks or rest; false if it is none or doesn't fit 32 bits.
bool ParseLong(std::string_view text, int& value);

// A name from a player or a file, as tables can hold it: on one line, cut to a hundred letters.
std::string NameOnOneLine(std::string_view text);
