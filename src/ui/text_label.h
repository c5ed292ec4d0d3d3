// A label that remembers how large its text is and how it is drawn. The toolkit's label lays its text out
// anew for each of its hints, for every width that a layout tries and for each paint, and to find where a
// Thai line may break is dear.
#pragma once

#include <QFont>
#include <QHash>
#include <QLabel>
#include <QStaticText>
#include <QString>

#include <optional>

namespace lodge {

class TextLabel : public QLabel {
    Q_OBJECT

  public:
    using QLabel::QLabel;

    /// The sizes of the toolkit's label, for plain text found with as few layouts as can be.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] bool isPlain() const;
    /// What margins, frame and indent take.
    [[nodiscard]] QSize around() const;
    [[nodiscard]] QSize textIn(int width) const;
    [[nodiscard]] QSize preferred() const;
    [[nodiscard]] int indentNow() const;
    /// Where the text stands.
    [[nodiscard]] QRect room() const;
    /// The text as it is drawn in that width.
    [[nodiscard]] const QStaticText& laidOut(int width);
    [[nodiscard]] bool wearsNothing();

    // What the sizes belong to, and the sizes by the width that the text has.
    mutable QString text_;
    mutable QFont font_;
    mutable int flags_ = -1;
    mutable QSize line_; // nothing broken but by its own breaks
    mutable QHash<int, QSize> sizes_;

    QStaticText drawn_;
    QFont drawnFont_;
    std::optional<bool> bare_; // wears nothing; unknown until it is asked
};

} // namespace lodge
