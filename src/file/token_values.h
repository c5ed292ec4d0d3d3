// How single values stand on a line of the return file, and how they are read back.
#pragma once

#include "file/layout.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lodge {

/// Tokens of a date: day, month, year.
inline constexpr std::size_t dateTokens = 3;

/// Writes a date of eight digits or of ten characters with slashes; an empty date is three empty tokens.
void writeDate(std::string_view date, TokenWriter& tokens);

/// Reads a date as eight digits; three empty tokens are an empty text.
std::string readPlainDate(TokenReader& tokens);

/// Reads a date as ten characters with slashes; three empty tokens are an empty text.
std::string readMaskDate(TokenReader& tokens);

/// The copy of an amount for the eye: separators, brackets for what is below zero, empty for an empty amount.
std::string amountForTheEye(const std::string& amount);

/// The amount as a plain number: no separators, below zero a minus and two decimals, "0" for an empty one.
std::string plainAmount(const std::string& amount);

/// The whole number at the head of a token; 0 when there is none or it does not fit 16 bits.
std::int16_t readWholeNumber(std::string_view token);

} // namespace lodge
