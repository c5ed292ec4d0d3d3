// Thai texts for the toolkit's own dialogs and menus, which come without any.
#pragma once

#include <QTranslator>

namespace lodge {

class ThaiTexts : public QTranslator {
    Q_OBJECT

  public:
    using QTranslator::QTranslator;

    [[nodiscard]] bool isEmpty() const override { return false; }
    /// The Thai text, or nothing for one that is not in the table: the toolkit then shows its own.
    [[nodiscard]] QString translate(const char* context, const char* sourceText,
        const char* disambiguation = nullptr, int n = -1) const override;
};

} // namespace lodge
