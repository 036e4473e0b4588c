// A program that saves one of the hub's files over and over, through the hub's own code, until it
// is killed: version 0 and version 1 of the content by turns. tst_savedfiles kills it at random
// moments and looks at what is left on disk.
//
//   orbe_file_writer macro DIR      the macro store in DIR/macro/ (header and events of macro 0)
//   orbe_file_writer works DIR      the light works library, DIR/work/ledwork.json
//   orbe_file_writer settings       the per-user values ($XDG_CONFIG_HOME/Orbe.conf)
//   orbe_file_writer autostart      the autostart entry ($XDG_CONFIG_HOME/autostart/)
//   orbe_file_writer device DIR     the last wired ids, DIR/config/device.ini
//   ... --once N                    saves version N once and ends: the file to expect
//
// It prints "ready" once the file exists, then keeps saving.

#include "Clock.h"
#include "ConsoleModel.h"
#include "LightWorkStore.h"
#include "LinuxPlatform.h"
#include "ModuleMacroManager.h"
#include "XdgAutostart.h"

#include <QCoreApplication>
#include <QStringList>
#include <cstdio>
#include <functional>

namespace {

// Big enough that a save takes a while, so that kills land inside it.
constexpr int kMacroEvents[2] = {3000, 5000};
constexpr int kSettingsChars[2] = {150000, 250000};
constexpr int kWorks[2] = {40, 60};

QList<LightWork> works(int version)
{
    QList<LightWork> list;
    for (int i = 0; i < kWorks[version]; ++i) {
        const QByteArray map(128 * 3, char(i + version));
        list.append({.image = QString(2000, QLatin1Char('A' + version)),
                     .name = QStringLiteral("work %1 of version %2").arg(i).arg(version),
                     .data = LightWorkStore::toHex(map)});
    }
    return list;
}

// The events of a version, made once: the loop spends its time saving, not building.
QList<MacroEvent*> macroEvents(int version)
{
    QList<MacroEvent*> events;
    for (int i = 0; i < kMacroEvents[version]; ++i) {
        if (i % 2 == 0)
            events.append(new MacroEvent{.type = MacroEvent::Key,
                                         .down = i % 4 == 0,
                                         .value = quint16(4 + version),
                                         .text = QStringLiteral("key of version %1").arg(version)});
        else
            events.append(new MacroEvent{.type = MacroEvent::Delay,
                                         .down = false,
                                         .value = quint16(10 + version),
                                         .text = QString()});
    }
    return events;
}

int run(const std::function<bool(int)>& save, int once)
{
    if (once >= 0) return save(once) ? 0 : 1;
    if (!save(0)) return 1;
    std::puts("ready");
    std::fflush(stdout);
    for (int round = 1;; ++round)
        if (!save(round % 2)) return 1;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments().mid(1);
    const qsizetype at = args.indexOf(QStringLiteral("--once"));
    const int once = at >= 0 ? qBound(0, args.value(at + 1).toInt(), 1) : -1;
    const QString kind = args.value(0);

    if (kind == QLatin1String("macro")) {
        ModuleMacroManager store(args.value(1));
        Macro* macro = store.FindMacro(0);
        if (!macro) return 1;
        qDeleteAll(macro->events);
        const QList<MacroEvent*> versions[2] = {macroEvents(0), macroEvents(1)};
        const int status = run(
            [&](int version) {
                macro->name = QStringLiteral("version %1").arg(version);
                macro->events = versions[version];
                return store.SaveHeader() && store.SaveEvents(macro);
            },
            once);
        macro->events.clear(); // the versions' events are freed here, not by the macro
        qDeleteAll(versions[0]);
        qDeleteAll(versions[1]);
        return status;
    }
    if (kind == QLatin1String("works")) {
        LightWorkStore store(args.value(1) + QStringLiteral("/work"));
        return run([&](int version) { return store.save(works(version)); }, once);
    }
    if (kind == QLatin1String("settings")) {
        LinuxPlatform platform;
        return run(
            [&](int version) {
                platform.setUserValue(QStringLiteral("DevicePath"),
                                      QString(kSettingsChars[version], QLatin1Char('a' + version)));
                return true;
            },
            once);
    }
    if (kind == QLatin1String("autostart")) {
        return run(
            [](int version) {
                return XdgAutostart::write(QStringLiteral("/opt/orbe hub %1/orbehub").arg(version));
            },
            once);
    }
    if (kind == QLatin1String("device")) {
        ConsoleModel console(QtClock::shared(),
                             args.value(1) + QStringLiteral("/config/device.ini"));
        return run(
            [&](int version) {
                console.setVidText(version ? QStringLiteral("25A7") : QStringLiteral("3151"));
                console.setPidText(version ? QStringLiteral("FA70") : QStringLiteral("502F"));
                console.rememberIds();
                return true;
            },
            once);
    }
    std::fputs("usage: orbe_file_writer macro DIR | works DIR | settings | autostart | device DIR "
               "[--once 0|1]\n",
               stderr);
    return 2;
}
