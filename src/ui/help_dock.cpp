#include "ui/help_dock.h"

#include <QFrame>
#include <QLabel>
#include <QScrollArea>
#include <QStringList>
#include <QVBoxLayout>

namespace lodge {

namespace {

constexpr int padding = 12;
constexpr int leastHeight = 128;
/// The keys stand in this many columns.
constexpr qsizetype keyColumns = 2;

QLabel* textLabel(const char* type) {
    auto* label = new QLabel;
    label->setProperty("type", QByteArray(type));
    label->setTextInteractionFlags(Qt::NoTextInteraction);
    return label;
}

} // namespace

HelpDock::HelpDock(QWidget* parent)
    : QDockWidget(parent), name_(textLabel("heading")), text_(textLabel("field")) {
    setObjectName(QStringLiteral("decorHelp"));
    setWindowTitle(QStringLiteral("คำอธิบาย"));
    setAccessibleName(windowTitle());
    setFeatures(QDockWidget::NoDockWidgetFeatures);
    setTitleBarWidget(new QWidget(this)); // the name of the field is title enough
    name_->setWordWrap(true);
    text_->setWordWrap(true);
    text_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* close = textLabel("tag");
    close->setText(QStringLiteral("Esc ปิด"));

    auto* body = new QFrame;
    body->setProperty("role", QByteArray("paper"));
    auto* rows = new QVBoxLayout(body);
    rows->setContentsMargins(padding, padding / 2, padding, padding);
    rows->setSpacing(0);
    auto* head = new QHBoxLayout;
    head->addWidget(name_, 1);
    head->addWidget(close, 0, Qt::AlignTop);
    rows->addLayout(head);
    rows->addWidget(text_, 1);

    auto* scroll = new QScrollArea;
    scroll->setProperty("role", QByteArray("help"));
    scroll->setWidget(body);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setMinimumHeight(leastHeight);
    setWidget(scroll);
}

void HelpDock::showField(const QString& name, const QString& text) {
    name_->setText(name);
    text_->setTextFormat(Qt::PlainText);
    text_->setText(text);
    show();
}

void HelpDock::showKeys(const QString& lines) {
    const QStringList keys = lines.split(QLatin1Char('\n'));
    const qsizetype rows = (keys.size() + keyColumns - 1) / keyColumns;
    QString table = QStringLiteral("<table cellpadding='2'>");
    for (qsizetype row = 0; row < rows; ++row) {
        table += QStringLiteral("<tr>");
        for (qsizetype at = row; at < keys.size(); at += rows) {
            table += QStringLiteral("<td><b>%1</b>&nbsp;&nbsp;</td><td>%2</td><td width='32'></td>")
                         .arg(keys[at].section(QLatin1Char('\t'), 0, 0).toHtmlEscaped(),
                             keys[at].section(QLatin1Char('\t'), 1).toHtmlEscaped());
        }
        table += QStringLiteral("</tr>");
    }
    name_->setText(QStringLiteral("แป้นพิมพ์"));
    text_->setTextFormat(Qt::RichText);
    text_->setText(table + QStringLiteral("</table>"));
    show();
}

} // namespace lodge
