// Numbers with check digits: the 13-digit numbers of companies and persons, the old 10-digit tax number.
// Each check shows its own message through the notifier; the caller decides what becomes of the field.
#pragma once

#include "values/notifier.h"

#include <string>
#include <string_view>

namespace lodge {

// Heads of 13-digit numbers that a field does not take, for HasPrefix.
inline constexpr std::string_view companyRefusedPrefixes = "0991 0992";
inline constexpr std::string_view accountantRefusedPrefixes = "0992 0993 0994"; // auditor and accountant

// The number itself when its thirteenth digit fits the twelve before it, otherwise empty after M114. What the
// money check refuses (an empty text, a letter) gives empty after that check's message alone.
[[nodiscard]] std::string ChkPerson13(std::string_view text, Notifier& notifier);

// The same check with M129.
[[nodiscard]] std::string ChkTax13(std::string_view text, Notifier& notifier);

// The old tax number itself when its ten digits fit, otherwise empty after M003. A number that begins with 0
// or with 5 to 9 gives empty without a message.
[[nodiscard]] std::string ChkTax10(std::string_view text, Notifier& notifier);

// The check of the company's own number. The text is put into `remembered` first; of thirteen characters it
// must pass the check of ChkPerson13 or `remembered` is emptied. No message but the money check's. Returns
// whether the check passed: false as well for any other length, which is remembered unchecked.
bool ChkNid13(std::string_view text, std::string& remembered, Notifier& notifier);

// Whether the first four characters of the text occur in the list, a text such as "0992 0993 0994". A text of
// fewer than four characters has no prefix.
[[nodiscard]] bool HasPrefix(std::string_view text, std::string_view list);

} // namespace lodge
