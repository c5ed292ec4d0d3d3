// Says beside figures that belong together whether they agree, and else by how much they do not: a word and
// an icon, never the colour alone.
#pragma once

#include "ui/text_label.h"

#include <QList>
#include <QPointer>

#include <functional>
#include <optional>
#include <string>

namespace lodge {

class TieTag : public TextLabel {
    Q_OBJECT
    /// The names of two widgets of the page that show the figures, parted by a blank.
    Q_PROPERTY(QString sides READ sides WRITE setSides)

  public:
    explicit TieTag(QWidget* parent = nullptr);

    [[nodiscard]] QString sides() const { return sides_; }
    void setSides(const QString& names) { sides_ = names; }

    /// A label or box against another one, from now on and for as long as both live.
    void compare(QWidget& here, QWidget& there);
    /// A label or box against a figure of another page, by its name in the return.
    void compare(QWidget& here, const QString& stateValue);
    /// Takes the figures of other pages anew; those of nothing are left alone.
    void readOthers(const std::function<std::optional<std::string>(const QString&)>& valueOf);

    /// Shows the icon alone; the words are in the tool tip and what a screen reader says.
    void setMarkOnly(bool markOnly);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    struct Pair {
        QPointer<QWidget> here;
        QPointer<QWidget> there;          ///< nullptr for a figure of another page.
        QString name;                     ///< Of that figure.
        std::optional<std::string> other; ///< The figure itself; nothing before it was read.
    };

    void watch(QWidget& side);
    void say();
    void show(const QString& text, const char* role);

    QString sides_;
    QList<Pair> pairs_;
    bool markOnly_ = false;
};

} // namespace lodge
