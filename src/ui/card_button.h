// A card of the chooser: the name of an item and, below it, what the item is about.
#pragma once

#include <QAbstractButton>

namespace lodge {

class CardButton : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(QString subject READ subject WRITE setSubject)

  public:
    explicit CardButton(QWidget* parent = nullptr);

    [[nodiscard]] const QString& subject() const { return subject_; }
    void setSubject(const QString& subject);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

  private:
    QString subject_;
};

} // namespace lodge
