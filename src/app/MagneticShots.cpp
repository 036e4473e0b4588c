#include "MagneticShots.h"

#include "DialogDeviceConnect.h"
#include "FrameDeviceHolder.h"
#include "FrameMagic.h"
#include "KeyboardButton.h"
#include "LinearFixing1.h"
#include "LinearFixing2.h"
#include "MainWindow.h"
#include "ModuleKeyboard.h"
#include "SuperLabel.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QTextStream>
#include <array>
#include <initializer_list>

namespace MagneticShots {

namespace {

constexpr int kMagneticPage = 2;
constexpr int kLeaveShell = 7;

FrameMagic* page(MainWindow& window)
{
    return window.deviceHolder()->findChild<FrameMagic*>();
}

void click(QWidget* root, const char* name)
{
    if (auto* button = root->findChild<QAbstractButton*>(QLatin1String(name))) button->click();
}

void type(QWidget* root, const char* parent, const char* name, const char* text)
{
    QWidget* holder = root->findChild<QWidget*>(QLatin1String(parent));
    if (!holder) return;
    if (auto* edit = holder->findChild<QLineEdit*>(QLatin1String(name))) {
        edit->setText(QLatin1String(text));
        emit edit->textEdited(edit->text());
    }
}

void select(FrameMagic* magic, std::initializer_list<quint8> codes)
{
    magic->keyboard()->selectAll(false);
    for (quint8 code : codes)
        if (KeyboardButton* key = magic->keyboard()->button(code)) key->click();
}

void key(QWidget* target, QEvent::Type type, int qtKey, const QString& text = QString())
{
    QKeyEvent event(type, qtKey, Qt::NoModifier, text);
    QCoreApplication::sendEvent(target, &event);
}

constexpr std::initializer_list<quint8> kGamingKeys{26, 4, 22, 7}; // W A S D
constexpr std::initializer_list<quint8> kLetterRow{20, 8, 21, 23, 28, 24, 12, 18, 19};

} // namespace

void leaveDevicePage(MainWindow& window)
{
    FrameDeviceHolder* holder = window.deviceHolder();
    holder->showPage(holder->findChild<SuperLabel*>(QStringLiteral("label8")), kLeaveShell);
}

void applyTravel(MainWindow& window)
{
    FrameDeviceHolder* holder = window.deviceHolder();
    holder->showPage(holder->findChild<SuperLabel*>(QStringLiteral("label3")), kMagneticPage);
    FrameMagic* magic = page(window);
    click(magic, "pushButtonSet0");

    // The letters a little deeper, without rapid trigger; then the gaming keys with full-travel
    // rapid trigger and a short actuation, which leaves the page's controls as they were set.
    select(magic, kLetterRow);
    type(magic, "frameLinear", "lineEditValue1", "1.2");
    click(magic, "pushButtonSetRT");

    select(magic, kGamingKeys);
    click(magic, "checkBoxFullRT");
    click(magic, "checkBoxRTPress");
    type(magic, "frameLinear", "lineEditValue1", "0.5");
    type(magic, "frame1", "lineEditValue1", "0.300");
    type(magic, "frame2", "lineEditValue2", "1.350");
    click(magic, "pushButtonSetRT");
    magic->keyboard()->selectAll(false);
}

void paintSwitchTypes(MainWindow& window)
{
    FrameMagic* magic = page(window);
    click(magic, "pushButtonSet2");
    struct Painting
    {
        const char* type;
        std::initializer_list<quint8> keys;
    };
    const std::array<Painting, 4> paintings{{
        {"pushButtonMT1", kGamingKeys},
        {"pushButtonMT3", {82, 81, 80, 79}},        // the arrows
        {"pushButtonMT0", {44, 225, 224}},          // space, shift, ctrl
        {"pushButtonMT4", {58, 59, 60, 61, 62, 63}} // F1 to F6
    }};
    for (const Painting& painting : paintings) {
        click(magic, painting.type);
        for (quint8 code : painting.keys)
            if (KeyboardButton* k = magic->keyboard()->button(code)) k->click();
    }
    magic->keyboard()->selectAll(false);
}

void startTests(MainWindow& window)
{
    FrameMagic* magic = page(window);
    click(magic, "pushButtonSet4");
    click(magic, "checkBoxKeytest0");
    click(magic, "checkBoxKeytest1");
    const std::array<std::pair<int, const char*>, 6> typed{{{Qt::Key_W, "w"},
                                                            {Qt::Key_A, "a"},
                                                            {Qt::Key_S, "s"},
                                                            {Qt::Key_D, "d"},
                                                            {Qt::Key_Space, " "},
                                                            {Qt::Key_F5, ""}}};
    for (const auto& [qtKey, text] : typed) {
        key(magic, QEvent::KeyPress, qtKey, QLatin1String(text));
        key(magic, QEvent::KeyRelease, qtKey, QLatin1String(text));
    }
    key(magic, QEvent::KeyPress, Qt::Key_Shift);
    key(magic, QEvent::KeyPress, Qt::Key_W, QStringLiteral("W"));
}

bool midPress(MainWindow& window)
{
    const float depth = window.connection()->GetKeyTravel();
    return depth > 0.55f && depth < 0.7f;
}

void startCalibration(MainWindow& window)
{
    FrameMagic* magic = page(window);
    click(magic, "checkBoxKeytest0");
    click(magic, "checkBoxKeytest1");
    click(window.deviceHolder(), "pushButtonFixline");
    if (auto* guide = window.findChild<LinearFixing1*>()) click(guide, "pushButtonStart");
}

bool saveCalibration(MainWindow& window, const QString& path)
{
    auto* guide = window.findChild<LinearFixing1*>();
    if (!guide || !guide->progress()) return false;
    QImage shot = window.grab().toImage();
    QPainter painter(&shot);
    const QPoint origin = window.mapToGlobal(QPoint(0, 0));
    for (QWidget* dialog : {static_cast<QWidget*>(guide), static_cast<QWidget*>(guide->progress())})
        painter.drawPixmap(dialog->mapToGlobal(QPoint(0, 0)) - origin, dialog->grab());
    painter.end();
    const bool ok = shot.save(path);
    QTextStream(stdout) << (ok ? "wrote " : "could not write ") << path << '\n';
    return ok;
}

void finishCalibration(MainWindow& window)
{
    if (auto* guide = window.findChild<LinearFixing1*>())
        if (LinearFixing2* progress = guide->progress()) click(progress, "pushButtonFinish");
}

} // namespace MagneticShots
