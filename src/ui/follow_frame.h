// A part of a page that stands on screen only while it has something to say: a row of the worksheet only with
// its rate, item 1 only for a promoted business, and a folded band in its place otherwise.
#pragma once

#include <QFrame>
#include <QList>
#include <QPointer>
#include <QStringList>

namespace lodge {

/// The widget of that name in the nearest part of the page around `part`, nullptr where there is none: a name
/// is unique in its page alone.
[[nodiscard]] QWidget* findAround(const QWidget& part, const QString& name);

class FollowFrame : public QFrame {
    Q_OBJECT
    /// Names of widgets, parted by blanks: the frame stands while any of them does. "NAME:ticked" counts
    /// while that box is ticked, "NAME:open" while that field is enabled.
    Q_PROPERTY(QString shownWith READ shownWith WRITE setShownWith)
    /// The same names: the frame stands while none of them counts.
    Q_PROPERTY(QString shownWithout READ shownWithout WRITE setShownWithout)

  public:
    using QFrame::QFrame;

    [[nodiscard]] QString shownWith() const { return with_; }
    void setShownWith(const QString& names) { with_ = names; }
    [[nodiscard]] QString shownWithout() const { return without_; }
    void setShownWithout(const QString& names) { without_ = names; }

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    enum class Sign { Shown, Ticked, Open };
    struct Followed {
        QPointer<QWidget> widget;
        Sign sign = Sign::Shown;
    };

    void findFollowed();
    void decide();
    [[nodiscard]] static bool counts(const Followed& followed);

    QString with_;
    QString without_;
    QList<Followed> followed_;
};

} // namespace lodge
