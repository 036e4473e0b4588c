#include "LightPageShots.h"

#include "DialogColorPicker.h"
#include "FrameDeviceHolder.h"
#include "FrameLight.h"
#include "KeyboardButton.h"
#include "MainWindow.h"
#include "ModuleKeyboard.h"
#include "SuperLabel.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <cmath>
#include <functional>

namespace LightPageShots {

namespace {

constexpr int kLightPage = 4;

// A painting: the colour of a key from its place on the board (0 to 1 across, 0 to 1 down).
struct Painting
{
    const char* name;
    std::function<QColor(double x, double y)> colour;
};

const Painting kPaintings[] = {
    {"Ocean",
     [](double x, double y) { return QColor::fromHsvF(0.50 + 0.14 * x, 0.9, 1.0 - 0.35 * y); }},
    {"Sunset",
     [](double x, double y) { return QColor::fromHsvF(0.02 + 0.12 * y, 0.95, 1.0 - 0.3 * x); }},
    {"Aurora",
     [](double x, double y) {
         return QColor::fromHsvF(std::fmod(0.30 + 0.55 * x + 0.1 * y, 1.0), 0.85, 1.0);
     }},
};

// Chooses a colour as the picker reports it, then clicks every key with its own colour.
void paint(FrameLight* page, const Painting& painting)
{
    ModuleKeyboard* board = page->keyboard();
    for (KeyboardButton* key : board->buttons()) {
        if (!key->isVisible()) continue;
        const QRect g = key->geometry();
        const double x = double(g.center().x()) / board->width();
        const double y = double(g.center().y()) / 340.0;
        emit page->picker()->onPickupColor(painting.colour(x, y));
        key->click();
    }
}

} // namespace

void paintWorks(MainWindow& window)
{
    FrameDeviceHolder* holder = window.deviceHolder();
    holder->showPage(holder->findChild<SuperLabel*>(QStringLiteral("label5")), kLightPage);
    FrameLight* page = holder->light();
    auto* name = page->findChild<QLineEdit*>(QStringLiteral("lineEditName"));
    for (const Painting& painting : kPaintings) {
        paint(page, painting);
        name->setText(QLatin1String(painting.name));
        page->findChild<QPushButton*>(QStringLiteral("pushButtonSave"))->click();
    }
    // The last painting is written to the first layer; the first work is chosen in the list.
    page->findChild<QAbstractButton*>(QStringLiteral("radioButtonW0"))->click();
    auto* table = page->findChild<QWidget*>(QStringLiteral("page1"))
                      ->findChild<QTableView*>(QStringLiteral("tableView"));
    const QPointF at = table->visualRect(page->worksModel()->index(2, 1)).center();
    const QPointF global = table->viewport()->mapToGlobal(at);
    QMouseEvent press(QEvent::MouseButtonPress, at, global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(table->viewport(), &press);
    QMouseEvent release(QEvent::MouseButtonRelease, at, global, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QCoreApplication::sendEvent(table->viewport(), &release);
}

} // namespace LightPageShots
