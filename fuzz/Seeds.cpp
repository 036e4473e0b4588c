// Writes the seed inputs of the file targets, as the stores themselves save them:
//   fuzz_seeds OUTDIR
// OUTDIR/fuzz_macrostore/: a header and event files, each behind the byte that picks its kind
// (0 header, 1 events); OUTDIR/fuzz_lightworks/: works libraries with real pictures and maps;
// OUTDIR/fuzz_replies/: what the virtual keyboard answers a connection, wired and wireless.

#include "LightWorkStore.h"
#include "ModuleGenKeymapping.h"
#include "ModuleMacroManager.h"
#include "ReplyScript.h"
#include "VirtualHidBackend.h"
#include "VirtualKeyboard.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
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

// A small picture of a keyboard as the works page stores it: a PNG in base64.
QString picture(int hue)
{
    QImage image(64, 24, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setBrush(QColor::fromHsv(hue, 200, 230));
    painter.drawRoundedRect(image.rect().adjusted(1, 1, -1, -1), 4, 4);
    painter.end();
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    image.save(&png, "PNG");
    return QString::fromLatin1(png.data().toBase64());
}

bool lightWorks(const QString& out)
{
    QTemporaryDir dir;
    LightWorkStore store(dir.path());
    QList<LightWork> works;
    bool ok = store.save(works); // an empty library
    ok = ok && QFile::copy(store.filePath(), QDir(out).filePath(QStringLiteral("empty")));
    for (int i = 0; i < 3; ++i) {
        QByteArray map(128 * 3, '\0');
        for (int key = 0; key < 128; ++key)
            map[key * 3 + i % 3] = char(key * 2);
        works.append({.image = picture(i * 100),
                      .name = QStringLiteral("作品 %1").arg(i),
                      .data = LightWorkStore::toHex(map)});
    }
    ok = ok && store.save(works);
    return ok && QFile::copy(store.filePath(), QDir(out).filePath(QStringLiteral("three")));
}

bool macros(const QString& out)
{
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
    return ok;
}

// Passes every call to the virtual keyboards and keeps what their reads hand over, as the
// reply target's chunks.
class RecordingBackend : public HidBackend
{
public:
    explicit RecordingBackend(HidBackend& devices) : inner(devices) {}
    QByteArray script;

    QList<HidDeviceInfo> enumerate(quint16 vid, quint16 pid) override
    {
        return inner.enumerate(vid, pid);
    }
    HidHandle* openPath(const QByteArray& path) override { return inner.openPath(path); }
    void close(HidHandle* handle) override { inner.close(handle); }
    int setNonblocking(HidHandle* handle, bool on) override
    {
        return inner.setNonblocking(handle, on);
    }
    int sendFeatureReport(HidHandle* handle, const quint8* data, size_t length) override
    {
        return inner.sendFeatureReport(handle, data, length);
    }
    int write(HidHandle* handle, const quint8* data, size_t length) override
    {
        return inner.write(handle, data, length);
    }
    int getFeatureReport(HidHandle* handle, quint8* data, size_t length) override
    {
        return keep(inner.getFeatureReport(handle, data, length), data, false);
    }
    int readTimeout(HidHandle* handle, quint8* data, size_t length, int ms) override
    {
        return keep(inner.readTimeout(handle, data, length, ms), data, false);
    }
    int read(HidHandle* handle, quint8* data, size_t length) override
    {
        // The poll's empty reads, and the key test's stream every 20 ms, would be most of the
        // seed: the first reports are kept, which is all the handling there is to reach.
        const int n = inner.read(handle, data, length);
        return n > 0 && inputsKept++ < kInputsKept ? keep(n, data, true) : n;
    }

private:
    static constexpr int kInputsKept = 16;
    int inputsKept = 0;

    int keep(int result, const quint8* data, bool input)
    {
        script += ReplyScript::chunk(data, result > 0 ? result : 0, input);
        return result;
    }
    HidBackend& inner;
};

bool replies(const QString& out)
{
    const ModuleGenKeymapping keys;
    bool ok = true;
    // Wired and wireless, the read alone and with every extra operation after it.
    for (const quint8 setup : {quint8(0x00), quint8(0x01), quint8(0xFE), quint8(0xFF)}) {
        ManualClock clock;
        VirtualHidBackend devices(&clock);
        devices.addWiredKeyboard();
        devices.addWirelessKeyboard()->setLinkLatency(0, 0);
        RecordingBackend recorder(devices);
        QTemporaryDir dir;
        {
            DialogDeviceConnect connection(&recorder, &clock, keys,
                                           dir.filePath(QStringLiteral("device.ini")),
                                           std::make_unique<InlineHidExecutor>());
            ReplyScript::drive(connection, clock, setup, [] { return false; });
        }
        QFile file(
            QDir(out).filePath(QStringLiteral("virtual-%1").arg(int(setup), 2, 16, QChar(u'0'))));
        ok = ok && file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
             file.write(QByteArray(1, char(setup)) + recorder.script) > 0;
    }
    return ok;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QDir out(app.arguments().value(1));
    if (out.path().isEmpty() || !out.mkpath(QStringLiteral("fuzz_macrostore")) ||
        !out.mkpath(QStringLiteral("fuzz_lightworks")) ||
        !out.mkpath(QStringLiteral("fuzz_replies")))
        return 2;
    const bool ok = macros(out.filePath(QStringLiteral("fuzz_macrostore"))) &&
                    lightWorks(out.filePath(QStringLiteral("fuzz_lightworks"))) &&
                    replies(out.filePath(QStringLiteral("fuzz_replies")));
    return ok ? 0 : 1;
}
