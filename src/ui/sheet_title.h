// The title of a sheet or card, as the paper form sets it: the name in bold, what stands in brackets behind
// it lighter, on one baseline. And the tag at the end of a sheet's head that says how much on the page is in
// the way of filing.
#pragma once

#include "ui/text_label.h"

#include <QWidget>

#include <cstddef>

namespace lodge {

class SheetTitle : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)
    Q_PROPERTY(QString remark READ remark WRITE setRemark)

  public:
    explicit SheetTitle(QWidget* parent = nullptr);

    [[nodiscard]] const QString& text() const { return text_; }
    /// "แบบที่ 1 (บันทึกข้อมูลใหม่)"; the lighter part begins at the first bracket behind a blank.
    void setText(const QString& text);
    /// The lighter part: what a layout gives, or else what the text has in brackets.
    [[nodiscard]] QString remark() const;
    void setRemark(const QString& remark);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QString name() const;

    QString text_;
    QString remark_;
};

class SheetTag : public TextLabel {
    Q_OBJECT

  public:
    explicit SheetTag(QWidget* parent = nullptr);

    /// How many things on the page are in the way; for none the tag goes.
    void setProblems(std::size_t count);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace lodge
