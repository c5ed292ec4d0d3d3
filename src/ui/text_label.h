// A label that remembers how large its text is. The toolkit's label lays its text out anew for each of its
// hints and for every width that a layout tries, and to find where a Thai line may break is dear.
#pragma once

#include <QFont>
#include <QHash>
#include <QLabel>
#include <QString>

namespace lodge {

class TextLabel : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

    /// The sizes of the toolkit's label, for plain text found with as few layouts as can be.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

  private:
    [[nodiscard]] bool isPlain() const;
    /// What margins, frame and indent take.
    [[nodiscard]] QSize around() const;
    [[nodiscard]] QSize textIn(int width) const;
    [[nodiscard]] QSize preferred() const;

    // What the sizes belong to, and the sizes by the width that the text has.
    mutable QString text_;
    mutable QFont font_;
    mutable int flags_ = -1;
    mutable QSize line_; // nothing broken but by its own breaks
    mutable QHash<int, QSize> sizes_;
};

} // namespace lodge
