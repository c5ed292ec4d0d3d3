// Says while a balance sheet is typed whether its two sides agree, and else by how much they do not.
#pragma once

#include <QLabel>
#include <QPointer>

namespace lodge {

class BalanceTie : public QLabel {
    Q_OBJECT

  public:
    /// Both labels must live in rows of their own and as long as this one is in use.
    BalanceTie(QLabel& assets, QLabel& funding);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void say();

    QPointer<QLabel> assets_;
    QPointer<QLabel> funding_;
};

} // namespace lodge
