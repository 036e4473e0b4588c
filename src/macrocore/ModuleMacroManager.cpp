#include "ModuleMacroManager.h"

#include "InstallLayout.h"
#include "JsonFile.h"
#include "MacroLog.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr char kFolderName[] = "macro";
constexpr char kHeaderFile[] = "macroheader.txt";
constexpr char kEventFilePattern[] = "macroevent%1.txt";
constexpr char kVersion[] = "20260109"; // written, never checked

// Record layouts of the packed stream.
namespace Packing {
constexpr quint16 kShortDelayMax = 127; // fits bits 0..6 of an action's second byte
constexpr quint8 kPressFlag = 0x80;
constexpr quint8 kDelayRecord = 0xF9; // opens the record of a type-3 action
} // namespace Packing

// A missing or unreadable file and a broken one all read as an empty document.
QJsonDocument readDocument(const QString& path)
{
    const QJsonDocument doc = JsonFile::read(path, &lcMacros);
    if (!doc.isNull() && !doc.isObject()) {
        qCWarning(lcMacros) << "unexpected content in" << path;
        return {};
    }
    return doc;
}

// The array under `key`; empty, and logged, when the file doesn't hold one.
QJsonArray readList(const QString& path, const char* key)
{
    const QJsonValue list = readDocument(path).object().value(QLatin1String(key));
    if (!list.isArray() && !list.isUndefined())
        qCWarning(lcMacros) << "unexpected content in" << path << "under" << key;
    return list.toArray();
}

bool writeDocument(const QString& path, const QJsonObject& root)
{
    return JsonFile::write(path, QJsonDocument(root), &lcMacros);
}

void appendActionRecord(QByteArray& out, const MacroEvent& action, quint16 delay)
{
    const auto lo = [](quint16 v) { return char(v & 0xFF); };
    const auto hi = [](quint16 v) { return char(v >> 8); };
    switch (action.type) {
    case MacroEvent::Key:
    case MacroEvent::MouseButton: {
        const quint8 press = action.down ? Packing::kPressFlag : 0;
        out.append(lo(action.value));
        if (delay <= Packing::kShortDelayMax) {
            out.append(char(press | delay));
        } else {
            out.append(char(press));
            out.append(lo(delay));
            out.append(hi(delay));
        }
        break;
    }
    case MacroEvent::Delay:
        out.append(char(Packing::kDelayRecord));
        out.append(delay <= Packing::kShortDelayMax ? char(delay) : '\0');
        out.append(lo(action.value));
        out.append(hi(action.value));
        if (delay > Packing::kShortDelayMax) {
            out.append(lo(delay));
            out.append(hi(delay));
        }
        break;
    default:
        // Deliberate: mouse positions go out as 00 00 and their delay is dropped.
        out.append(2, '\0');
        break;
    }
}

} // namespace

ModuleMacroManager::ModuleMacroManager(const QString& baseDir, QObject* parent) : QObject(parent)
{
    // Beside the program when it can be written there, else in the user's data folder.
    const QString folder = baseDir.isEmpty()
                               ? InstallLayout().userFilesDir(QLatin1String(kFolderName))
                               : QDir(baseDir).absoluteFilePath(QLatin1String(kFolderName));
    m_folder = folder + QDir::separator();
    if (!QDir().mkpath(m_folder))
        qCWarning(lcMacros) << "cannot create the macro folder" << m_folder;
    LoadHeader();
}

ModuleMacroManager::~ModuleMacroManager()
{
    qDeleteAll(m_macros);
}

QString ModuleMacroManager::headerPath() const
{
    return m_folder + QLatin1String(kHeaderFile);
}

QString ModuleMacroManager::eventPath(quint8 id) const
{
    return m_folder + QString::fromLatin1(kEventFilePattern).arg(id);
}

Macro* ModuleMacroManager::AddMacro()
{
    if (m_macros.size() >= kMaxMacros) return nullptr;

    quint8 id = 0;
    while (FindMacro(id))
        ++id;

    auto* macro = new Macro;
    macro->id = id;
    macro->name = tr("新建宏") + QString::number(id);
    m_macros.append(macro);
    return macro;
}

void ModuleMacroManager::RemoveMacro(Macro* macro)
{
    if (!macro || !m_macros.removeOne(macro)) {
        qCWarning(lcMacros) << "RemoveMacro: not a macro of this store";
        return;
    }
    delete macro;
    SaveHeader();
}

Macro* ModuleMacroManager::FindMacro(quint8 id) const
{
    for (Macro* macro : m_macros) {
        if (macro->id == id) return macro;
    }
    return nullptr;
}

MacroEvent* ModuleMacroManager::AddEvent(Macro* macro, quint8 type, quint16 value, bool down,
                                         const QString& text)
{
    if (!macro) return nullptr;
    auto* event = new MacroEvent{.type = type, .down = down, .value = value, .text = text};
    macro->events.append(event);
    return event;
}

bool ModuleMacroManager::SaveHeader()
{
    QJsonArray list;
    for (const Macro* macro : std::as_const(m_macros)) {
        list.append(QJsonObject{
            {QStringLiteral("id"), macro->id},
            {QStringLiteral("mode"), macro->mode},
            {QStringLiteral("name"), macro->name},
            {QStringLiteral("repeat"), macro->repeat},
        });
    }
    const QJsonObject root{
        {QStringLiteral("version"), QLatin1String(kVersion)},
        {QStringLiteral("count"), int(m_macros.size())},
        {QStringLiteral("macro"), list},
    };
    const bool written = writeDocument(headerPath(), root);
    emit listSaved();
    return written;
}

void ModuleMacroManager::LoadHeader()
{
    qDeleteAll(m_macros);
    m_macros.clear();

    const QJsonArray list = readList(headerPath(), "macro");
    for (const QJsonValue& entry : list) {
        const QJsonObject object = entry.toObject();
        const QJsonValue idValue = object.value(QLatin1String("id"));
        const int id = idValue.toInt(-1);
        // A hand-edited header must not give two macros one slot, or a slot the keyboard lacks.
        if (!idValue.isDouble() || id < 0 || id >= kMaxMacros || FindMacro(quint8(id))) {
            qCWarning(lcMacros) << "skipping a header entry with id" << idValue;
            continue;
        }
        if (m_macros.size() >= kMaxMacros) {
            qCWarning(lcMacros) << "header lists more than" << kMaxMacros << "macros";
            break;
        }
        auto* macro = new Macro;
        macro->id = quint8(id);
        macro->mode = quint8(object.value(QLatin1String("mode")).toInt(0));
        macro->name = object.value(QLatin1String("name")).toString();
        macro->repeat = quint8(object.value(QLatin1String("repeat")).toInt(1));
        m_macros.append(macro);
        LoadEvents(macro);
    }

    if (m_macros.isEmpty()) {
        for (int i = 0; i < kFirstStartMacros; ++i)
            AddMacro();
        SaveHeader();
    }
}

bool ModuleMacroManager::SaveEvents(Macro* macro)
{
    if (!macro) return false;
    QJsonArray data;
    for (const MacroEvent* event : std::as_const(macro->events)) {
        data.append(QJsonObject{
            {QStringLiteral("type"), event->type},
            {QStringLiteral("value"), event->value},
            {QStringLiteral("down"), event->down},
            {QStringLiteral("text"), event->text},
        });
    }
    const bool written =
        writeDocument(eventPath(macro->id), QJsonObject{{QStringLiteral("data"), data}});
    emit macroSaved(macro->id);
    return written;
}

void ModuleMacroManager::LoadEvents(Macro* macro)
{
    if (!macro) return;
    qDeleteAll(macro->events);
    macro->events.clear();

    const QJsonArray data = readList(eventPath(macro->id), "data");
    for (const QJsonValue& entry : data) {
        if (!entry.isObject()) {
            qCWarning(lcMacros) << "skipping a non-object event of macro" << macro->id;
            continue;
        }
        const QJsonObject object = entry.toObject();
        AddEvent(macro, quint8(object.value(QLatin1String("type")).toInt()),
                 quint16(object.value(QLatin1String("value")).toInt()),
                 object.value(QLatin1String("down")).toBool(),
                 object.value(QLatin1String("text")).toString());
    }
}

QByteArray ModuleMacroManager::PackMacro(const Macro* macro)
{
    QByteArray out;
    if (!macro) return out;
    const QList<MacroEvent*>& events = macro->events;
    for (qsizetype i = 0; i < events.size(); i += 2) {
        const MacroEvent* action = events.at(i);
        const MacroEvent* delay = i + 1 < events.size() ? events.at(i + 1) : nullptr;
        if (!action) continue;
        // A hand-edited file may end on an action; it still goes out, with no delay, so that a
        // release is never lost.
        appendActionRecord(out, *action, delay ? delay->value : 0);
    }
    return out;
}
