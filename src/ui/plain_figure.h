// An amount as people write it, made the plain figure that an amount box holds.
#pragma once

#include <QString>

namespace lodge {

/// "1,234.50", "๑,๒๓๔.๕๐", "฿ 1 234.50" and "1,234.50 บาท" are 1234.50; "(5)" and a true minus sign are -5. A
/// text that is no whole figure yet, "(5" or "1.2.3", stays as it is: the rules of the box judge it.
[[nodiscard]] QString plainFigure(const QString& text);

} // namespace lodge
