// A label of several lines that remembers how high it gets in a width. Layouts ask for the same few widths
// over and over, and to find where a Thai line may break is dear.
#pragma once

#include <QFont>
#include <QHash>
#include <QLabel>
#include <QString>

namespace lodge {

class WrapLabel : public QLabel {
  public:
    using QLabel::QLabel;

    [[nodiscard]] int heightForWidth(int width) const override;

  private:
    mutable QString text_;
    mutable QFont font_;
    mutable QHash<int, int> heights_;
};

} // namespace lodge
