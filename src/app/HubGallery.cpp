// Renders the hub's own pages and its pictures in place to PNG files, so that they can be looked
// at without a display: orbe_hub_gallery <folder>. Run from the build's bin folder's parent or
// anywhere: the pictures beside the program are found through the executable's folder.

#include "FrameAbout.h"
#include "FrameSystemInfo.h"
#include "ModuleLangMenu.h"
#include "Platform.h"
#include "SuperLabel.h"

#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QTextStream>
#include <QVBoxLayout>
#include <array>
#include <memory>

namespace {

bool save(QWidget* widget, const QString& path)
{
    widget->show();
    QCoreApplication::sendPostedEvents();
    const bool ok = widget->grab().save(path);
    QTextStream(stdout) << (ok ? "wrote " : "could not write ") << path << '\n';
    return ok;
}

QWidget* onGround(QWidget* content, const char* colour, int margin = 24)
{
    auto* ground = new QWidget;
    ground->setObjectName(QStringLiteral("ground"));
    ground->setAttribute(Qt::WA_StyledBackground);
    ground->setStyleSheet(
        QStringLiteral("#ground { background-color: %1; }").arg(QLatin1String(colour)));
    auto* layout = new QVBoxLayout(ground);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(content);
    return ground;
}

// A card as the device list shows it: picture (at most 210 high), name and two badges.
QWidget* card(const QString& picture, const QString& name, const QString& battery,
              const QString& link)
{
    auto* frame = new QFrame;
    frame->setObjectName(QStringLiteral("card"));
    frame->setStyleSheet(
        QStringLiteral("#card { background-color: #F4F4F4; border-radius: 32px; }"
                       "QLabel { background: transparent; font-size: 15px; color: #222222; }"));
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->setSpacing(12);
    QPixmap pixmap(picture);
    auto* image = new QLabel;
    image->setScaledContents(true);
    image->setPixmap(pixmap);
    if (!pixmap.isNull()) image->setFixedSize(QSize(pixmap.width() * 210 / pixmap.height(), 210));
    layout->addWidget(image, 0, Qt::AlignCenter);
    auto* line = new QHBoxLayout;
    line->addWidget(new QLabel(name), 1);
    for (const QString& badge : {battery, link}) {
        if (badge.isEmpty()) continue;
        auto* label = new QLabel;
        label->setFixedSize(25, 25);
        label->setScaledContents(true);
        label->setPixmap(QPixmap(badge));
        line->addWidget(label);
    }
    layout->addLayout(line);
    return frame;
}

QWidget* cards(const QString& beside)
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setSpacing(20);
    layout->addWidget(card(beside + "ORBE-HE75.png", "ORBE HE75", ":/images/dev/batt-75.png",
                           ":/images/dev/2.4g.png"));
    layout->addWidget(card(beside + "ORBE-Glide-M1.png", "ORBE Glide M1",
                           ":/images/dev/batt-low.png", ":/images/dev/ble.png"));
    layout->addWidget(
        card(beside + "ORBE-Hit-Box.png", "ORBE Hit Box", QString(), ":/images/dev/usb.png"));
    return onGround(row, "#FFFFFF");
}

// The device page's navigation column, the second entry selected.
QWidget* navigation()
{
    constexpr std::array<const char*, 6> names{"shouye",     "jianweishezhi",  "cizhoushezhi",
                                               "hongshezhi", "dengxiaoshezhi", "guanyu"};
    auto* column = new QFrame;
    column->setObjectName(QStringLiteral("column"));
    column->setStyleSheet(
        QStringLiteral("#column { background-color: #F6F6F6; border-radius: 24px; }"));
    auto* layout = new QVBoxLayout(column);
    layout->setSpacing(14);
    QList<SuperLabel*> labels;
    for (const char* name : names) {
        auto* label = new SuperLabel(column);
        label->setFixedSize(56, 56);
        label->setAlignment(Qt::AlignCenter);
        label->setStyles(
            QStringLiteral("QLabel { background-color: #6329B6; border-radius: 16px;}"),
            QStringLiteral("QLabel { background-color: transparent; }"));
        label->setPictures(QStringLiteral(":/images/leftbtns/1/%1.png").arg(QLatin1String(name)),
                           QStringLiteral(":/images/leftbtns/0/%1.png").arg(QLatin1String(name)));
        layout->addWidget(label);
        labels << label;
    }
    auto* back = new QLabel(column);
    back->setFixedSize(56, 56);
    back->setAlignment(Qt::AlignCenter);
    back->setPixmap(QPixmap(QStringLiteral(":/images/btn-return.png")));
    layout->addWidget(back);
    labels.at(1)->setSelected(true);
    return onGround(column, "#FFFFFF");
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    const QString out = app.arguments().value(1, QStringLiteral("."));
    QDir().mkpath(out);
    const QString beside = QCoreApplication::applicationDirPath() + QStringLiteral("/images/");
    bool ok = true;

    FrameAbout about;
    about.setFixedSize(1124, 740);
    ok &= save(onGround(&about, "#FFFFFF"), out + "/about.png");

    const std::unique_ptr<Platform> platform = Platform::create();
    auto* info = new FrameSystemInfo(*platform);
    ok &= save(onGround(info, "rgba(220, 220, 220, 0.96)", 40), out + "/system-info.png");

    ModuleLangMenu menu;
    menu.setAttribute(Qt::WA_TranslucentBackground, false);
    // Checked by hand: a click would hide the menu.
    menu.findChild<QPushButton*>(QStringLiteral("pushButtonLang1"))->setChecked(true);
    ok &= save(onGround(&menu, "#FFFFFF"), out + "/language-menu.png");

    ok &= save(cards(beside), out + "/cards.png");
    ok &= save(navigation(), out + "/navigation.png");
    return ok ? 0 : 1;
}
