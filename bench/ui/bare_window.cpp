// The least that a first window costs: the toolkit's own widgets, as many of each kind as the start screen
// and the frame have, in one grid, with Thai texts in the font of the program. No layout files, no style
// sheet, no models.

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>

namespace {

constexpr int columns = 4;

template <typename Widget>
void add(QGridLayout& grid, int count) {
    for (int i = 0; i < count; ++i) {
        const int place = grid.count();
        grid.addWidget(
            new Widget(QStringLiteral("รอบระยะเวลาบัญชี %1").arg(place)), place / columns, place % columns);
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QFont font(QStringLiteral("Loma"));
    font.setPixelSize(14);
    QApplication::setFont(font);
    QMainWindow window;
    auto* centre = new QWidget;
    auto* grid = new QGridLayout(centre);
    add<QLineEdit>(*grid, BARE_EDITS);
    add<QCheckBox>(*grid, BARE_TICKS);
    add<QPushButton>(*grid, BARE_BUTTONS);
    add<QLabel>(*grid, BARE_LABELS);
    const QList<QLabel*> labels = centre->findChildren<QLabel*>();
    for (QLabel* label : labels.first(BARE_WRAPPED)) {
        label->setWordWrap(true); // which is what asks for the dictionary of Thai words
    }
    window.setCentralWidget(centre);
    window.resize(1366, 768);
    window.show();
    return QApplication::exec();
}
