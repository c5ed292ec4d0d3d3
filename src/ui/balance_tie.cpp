#include "ui/balance_tie.h"

#include "pages/fields/amounts.h"
#include "values/money.h"

#include <QEvent>
#include <QStyle>

#include <cmath>

namespace lodge {

BalanceTie::BalanceTie(QLabel& assets, QLabel& funding) : assets_(&assets), funding_(&funding) {
    setTextFormat(Qt::PlainText);
    setProperty("type", QByteArray("heading"));
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setIndent(12);
    // A label tells nobody that it has a new text, but it asks the row around it for its place again.
    assets.parentWidget()->installEventFilter(this);
    funding.parentWidget()->installEventFilter(this);
    say();
}

bool BalanceTie::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::LayoutRequest && assets_ != nullptr && funding_ != nullptr) {
        say();
    }
    return false;
}

void BalanceTie::say() {
    const std::string assets = assets_->text().toStdString();
    const std::string funding = funding_->text().toStdString();
    QString text;
    QByteArray tone;
    if (!assets.empty() || !funding.empty()) {
        const double difference = readFigure(assets) - readFigure(funding);
        const bool agrees = sameAmount(readFigure(assets), readFigure(funding));
        text = agrees ? QStringLiteral("สองด้านตรงกัน")
                      : QStringLiteral("สองด้านต่างกัน %1")
                            .arg(QString::fromStdString(formatMoney(std::abs(difference))));
        tone = agrees ? "ok" : "stop";
    }
    if (text != this->text()) {
        setText(text);
        setProperty("tone", tone);
        style()->unpolish(this);
        style()->polish(this);
    }
}

} // namespace lodge
