// Writes the seed inputs of fuzz_macrostore into a folder: a header and event files as the store
// saves them, each behind the byte that picks its kind (0 header, 1 events).
//   fuzz_macro_seeds OUTDIR

#include "ModuleMacroManager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

bool seed(const QString& out, const QString& name, char kind, const QString& source)
{
    QFile in(source);
    QFile file(QDir(out).filePath(name));
    if (!in.open(QIODevice::ReadOnly) || !file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    return file.write(QByteArray(1, kind) + in.readAll()) > 0;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QString out = app.arguments().value(1);
    if (out.isEmpty() || !QDir().mkpath(out)) return 2;
    QTemporaryDir dir;
    ModuleMacroManager store(dir.path());

    // A typed word, a mouse click with a long delay, positions, and a macro ending on an action.
    Macro* typed = store.FindMacro(0);
    typed->name = QStringLiteral("typed");
    typed->repeat = 3;
    for (quint16 key : {0x0B, 0x08, 0x0F, 0x0F, 0x12}) {
        store.AddEvent(typed, MacroEvent::Key, key, true, QStringLiteral("key"));
        store.AddEvent(typed, MacroEvent::Delay, 30, false, QString());
        store.AddEvent(typed, MacroEvent::Key, key, false, QStringLiteral("key"));
        store.AddEvent(typed, MacroEvent::Delay, 45, false, QString());
    }
    Macro* click = store.FindMacro(1);
    click->mode = 2;
    store.AddEvent(click, MacroEvent::MouseButton, 1, true, QStringLiteral("left"));
    store.AddEvent(click, MacroEvent::Delay, 1500, false, QString());
    store.AddEvent(click, MacroEvent::MouseButton, 1, false, QStringLiteral("left"));
    store.AddEvent(click, MacroEvent::Delay, 0, false, QString());
    Macro* moves = store.FindMacro(2);
    store.AddEvent(moves, MacroEvent::MousePosition, 127 * 256 + 127, false, QStringLiteral("xy"));
    store.AddEvent(moves, MacroEvent::Delay, 128, false, QString());
    store.AddEvent(moves, MacroEvent::Delay, 65535, false, QString());
    Macro* open = store.FindMacro(3);
    store.AddEvent(open, MacroEvent::Key, 0xE1, true, QStringLiteral("shift"));

    bool ok = store.SaveHeader() && seed(out, QStringLiteral("header"), 0, store.headerPath());
    for (quint8 id = 0; id < 4; ++id) {
        ok = ok && store.SaveEvents(store.FindMacro(id)) &&
             seed(out, QStringLiteral("events%1").arg(id), 1, store.eventPath(id));
    }
    return ok ? 0 : 1;
}
