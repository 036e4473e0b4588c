// Draws every picture of the hub.
//   orbe_draw_images <resource folder> <folder beside the program> <icon theme folder>
//                    <macro page folder> <magnetic page folder>
// The first receives what is built into ":/images/", the second the start-up pictures, the
// default device pictures and one picture per catalogue device, named after the device with
// blanks as dashes (the form the hub looks up), the third the application icon in the hicolor
// theme's sizes (hicolor/<n>x<n>/apps/<application id>.png), installed for the desktop, the
// fourth the macro page's pictures (built into ":/images/macropage/" by the page's own library),
// the fifth the magnetic page's (built into ":/images/" by that page's library).

#include "AppIconArt.h"
#include "Art.h"
#include "BrandArt.h"
#include "DeviceArt.h"
#include "DksArt.h"
#include "IconArt.h"
#include "KeyPageArt.h"
#include "KeyboardArt.h"
#include "LightArt.h"
#include "MacroPageArt.h"
#include "MagneticArt.h"

#include <QGuiApplication>
#include <QTextStream>
#include <array>

namespace {

using IconArt::Glyph;
using KeyboardArt::Layout;

// The device page's navigation entries, by their picture names.
struct NavigationEntry
{
    const char* name;
    Glyph glyph;
};
constexpr std::array<NavigationEntry, 6> kNavigation{{
    {"shouye", Glyph::Home},
    {"jianweishezhi", Glyph::Keys},
    {"cizhoushezhi", Glyph::Magnet},
    {"hongshezhi", Glyph::Macro},
    {"dengxiaoshezhi", Glyph::Light},
    {"guanyu", Glyph::About},
}};

// The cards' battery pictures and the charge each shows.
struct BatteryPicture
{
    const char* name;
    double level;
};
constexpr std::array<BatteryPicture, 5> kBatteries{{
    {"batt-low", 0.1},
    {"batt-25", 0.3},
    {"batt-50", 0.5},
    {"batt-75", 0.75},
    {"batt-full", 1.0},
}};

enum class Kind { Keyboard, Mouse, HitBox, HitBoxScreen, Generic };

struct DevicePicture
{
    const char* file;
    Kind kind;
    Layout layout = Layout::Compact75;
};

// One picture per device of the catalogues and the custom list, and the default of each
// device type ("default%1" with the type).
constexpr std::array<DevicePicture, 21> kDevices{{
    {"ORBE-HE75", Kind::Keyboard, Layout::Compact75},
    {"ORBE-HE98", Kind::Keyboard, Layout::Compact98},
    {"ORBE-7090-HE", Kind::Keyboard, Layout::Compact75},
    {"ORBE-Pro68", Kind::Keyboard, Layout::Compact65},
    {"ORBE-Pro87", Kind::Keyboard, Layout::Tenkeyless},
    {"ORBE-Glide-M1", Kind::Mouse},
    {"ORBE-Hit-Box", Kind::HitBox},
    {"ORBE-Hit-Box-Screen", Kind::HitBoxScreen},
    {"Tarnwick-T75-HE", Kind::Keyboard, Layout::Compact75},
    {"Tarnwick-T98-HE", Kind::Keyboard, Layout::Compact98},
    {"Tarnwick-T68", Kind::Keyboard, Layout::Compact65},
    {"Tarnwick-Glide", Kind::Mouse},
    {"WS-Virtual-2.4G", Kind::Keyboard, Layout::Compact75},
    {"WS-Wired-87", Kind::Keyboard, Layout::Tenkeyless},
    {"BY-Virtual-65", Kind::Keyboard, Layout::Compact65},
    {"JM-Virtual-BT", Kind::Keyboard, Layout::Compact98},
    {"default0", Kind::Keyboard, Layout::Tenkeyless},
    {"default1", Kind::Mouse},
    {"default2", Kind::Generic},
    {"default3", Kind::HitBox},
    {"default255", Kind::Generic},
}};

constexpr double kKeyboardUnit = 60; // pixels per key

// The desktop's name of the hub: its desktop entry, metainfo and icon are named after it.
constexpr const char* kAppId = "org.orbehub.OrbeHub";

QImage devicePicture(const DevicePicture& device)
{
    const bool isDefault = QLatin1String(device.file).startsWith(QLatin1String("default"));
    switch (device.kind) {
    case Kind::Keyboard:
        // The default keyboard stays plain: no accent keys.
        return KeyboardArt::keyboard(device.layout, kKeyboardUnit, {.accents = !isDefault});
    case Kind::Mouse:
        return DeviceArt::mouse(!isDefault);
    case Kind::HitBox:
        return DeviceArt::hitBox(false);
    case Kind::HitBoxScreen:
        return DeviceArt::hitBox(true);
    case Kind::Generic:
        return DeviceArt::genericDevice();
    }
    return {};
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 6) {
        QTextStream(stderr)
            << "usage: orbe_draw_images <resource folder> <beside folder> <icon theme folder> "
               "<macro page folder> <magnetic page folder>\n";
        return 2;
    }
    const QString res = args.at(1) + u'/';
    const QString beside = args.at(2) + u'/';
    const QString icons = args.at(3) + u'/';
    const QString macroPage = args.at(4) + u'/';
    const QString magneticPage = args.at(5) + u'/';

    for (int size : AppIconArt::kSizes)
        Art::save(AppIconArt::appIcon(size),
                  icons + QStringLiteral("hicolor/%1x%1/apps/%2.png").arg(size).arg(kAppId));

    Art::save(BrandArt::orbeWordMark(), res + "OrbeFlag.png");
    Art::save(BrandArt::tarnwickWordMark(), res + "Trwlogo.png");
    Art::save(BrandArt::trayIcon(), res + "logo.png");
    Art::save(IconArt::floatArrow(true), res + "a-left.png");
    Art::save(IconArt::floatArrow(false), res + "a-right.png");
    Art::save(IconArt::navigation(Glyph::Return, false), res + "btn-return.png");
    Art::save(IconArt::navigation(Glyph::User, false), res + "User.png");
    Art::save(IconArt::navigation(Glyph::Close, false), res + "ic-close.png");
    Art::save(IconArt::navigation(Glyph::Settings, false), res + "ic-set.png");
    Art::save(IconArt::navigation(Glyph::Language, false), res + "ic-lang.png");
    Art::save(IconArt::navigation(Glyph::Minimise, false), res + "ic-min.png");
    // White: the tick of a checked box, on purple.
    Art::save(IconArt::navigation(Glyph::Check, true), res + "ic-check.png");
    Art::save(IconArt::lamp(false), res + "General_NG4.png");
    Art::save(IconArt::lamp(true), res + "General_OK4.png");
    Art::save(DeviceArt::showcase(), res + "Orbe-Kb3.png");
    for (const NavigationEntry& entry : kNavigation) {
        for (int selected : {0, 1})
            Art::save(IconArt::navigation(entry.glyph, selected == 1),
                      res + QStringLiteral("leftbtns/%1/%2.png").arg(selected).arg(entry.name));
    }
    for (const BatteryPicture& b : kBatteries)
        Art::save(IconArt::battery(b.level), res + "dev/" + b.name + ".png");
    Art::save(IconArt::connection(IconArt::Link::Usb), res + "dev/usb.png");
    Art::save(IconArt::connection(IconArt::Link::Receiver), res + "dev/2.4g.png");
    Art::save(IconArt::connection(IconArt::Link::Bluetooth), res + "dev/ble.png");
    Art::save(LightArt::pipette(), res + "pickup2.png");
    Art::save(LightArt::colourHighlight(), res + "Color-picked.png");
    Art::save(LightArt::lightBand(), res + "light/light.png");

    KeyPageArt::saveAll(res);
    DksArt::saveAll(res);

    Art::save(BrandArt::orbeSplash(), beside + "MainPicture.png");
    Art::save(BrandArt::tarnwickSplash(), beside + "trgear.png");
    for (const DevicePicture& device : kDevices)
        Art::save(devicePicture(device), beside + device.file + ".png");
    MacroPageArt::saveAll(macroPage);
    MagneticArt::saveAll(magneticPage);
    return 0;
}
