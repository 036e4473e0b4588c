#include "FakePlatform.h"

#include <QFileInfo>

namespace {

QString text(const QString& s)
{
    return QLatin1Char('"') + s + QLatin1Char('"');
}

QString hex(quint64 v)
{
    return QStringLiteral("0x") + QString::number(v, 16);
}

QString rect(const QRect& r)
{
    return QStringLiteral("%1,%2 %3x%4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

QString boolean(bool b)
{
    return b ? QStringLiteral("true") : QStringLiteral("false");
}

QString variant(const QVariant& v)
{
    return v.typeId() == QMetaType::QString ? text(v.toString()) : v.toString();
}

QString zOrder(Platform::ZOrder order)
{
    switch (order) {
    case Platform::ZOrder::Top:
        return QStringLiteral("Top");
    case Platform::ZOrder::Bottom:
        return QStringLiteral("Bottom");
    case Platform::ZOrder::TopMost:
        return QStringLiteral("TopMost");
    case Platform::ZOrder::NoTopMost:
        return QStringLiteral("NoTopMost");
    }
    return {};
}

QString nameOf(const QString& operation)
{
    return operation.left(operation.indexOf(u'('));
}

} // namespace

FakePlatform* FakePlatform::install()
{
    auto fake = std::make_unique<FakePlatform>();
    FakePlatform* installed = fake.get();
    Platform::replaceInstance(std::move(fake));
    return installed;
}

QStringList FakePlatform::operationsNamed(std::initializer_list<const char*> names) const
{
    QStringList wanted;
    for (const char* name : names)
        wanted << QString::fromLatin1(name);
    QStringList out;
    for (const QString& op : operations) {
        if (wanted.contains(nameOf(op))) out << op;
    }
    return out;
}

QStringList FakePlatform::operationNames() const
{
    QStringList out;
    for (const QString& op : operations)
        out << nameOf(op);
    return out;
}

void FakePlatform::record(const char* name, const QStringList& arguments)
{
    operations << QString::fromLatin1(name) + u'(' + arguments.join(QLatin1String(", ")) + u')';
}

void FakePlatform::setConsoleOutputUtf8()
{
    record("setConsoleOutputUtf8");
}

bool FakePlatform::isSessionLocked()
{
    record("isSessionLocked");
    return locked;
}

qint64 FakePlatform::millisecondsSinceInput()
{
    record("millisecondsSinceInput");
    return idleMilliseconds;
}

qint16 FakePlatform::keyState(int virtualKey)
{
    record("keyState", {hex(quint64(virtualKey))});
    return keyStates.value(virtualKey);
}

QString FakePlatform::autostartProgram()
{
    record("autostartProgram");
    return autostart;
}

bool FakePlatform::setAutostart(const QString& programPath)
{
    record("setAutostart", {text(programPath)});
    autostart = programPath;
    return true;
}

bool FakePlatform::clearAutostart()
{
    record("clearAutostart");
    autostart.clear();
    return true;
}

void FakePlatform::clearMachineAutostart()
{
    record("clearMachineAutostart");
}

QVariant FakePlatform::userValue(const QString& key)
{
    record("userValue", {text(key)});
    return values.value(key);
}

void FakePlatform::setUserValue(const QString& key, const QVariant& value)
{
    record("setUserValue", {text(key), variant(value)});
    values.insert(key, value);
}

void FakePlatform::removeUserValue(const QString& key)
{
    record("removeUserValue", {text(key)});
    values.remove(key);
}

bool FakePlatform::startProcess(const QString& programPath)
{
    record("startProcess", {text(programPath)});
    if (processesStart) runningProcesses << QFileInfo(programPath).fileName();
    return processesStart;
}

bool FakePlatform::isProcessRunning(const QString& name)
{
    record("isProcessRunning", {text(name)});
    return runningProcesses.contains(name, Qt::CaseInsensitive);
}

bool FakePlatform::endProcess(const QString& name)
{
    record("endProcess", {text(name)});
    return runningProcesses.removeIf([&](const QString& running) {
        return running.compare(name, Qt::CaseInsensitive) == 0;
    }) > 0;
}

Platform::WindowId FakePlatform::findWindow(const QString& title, const QString& className)
{
    record("findWindow", {text(title), text(className)});
    return windowsByTitle.value(title);
}

void FakePlatform::setWindowParent(WindowId window, WindowId parent)
{
    record("setWindowParent", {hex(window), hex(parent)});
}

void FakePlatform::setWindowStyle(WindowId window, quint32 style, quint32 exStyle)
{
    record("setWindowStyle", {hex(window), hex(style), hex(exStyle)});
}

void FakePlatform::showWindow(WindowId window)
{
    record("showWindow", {hex(window)});
}

void FakePlatform::hideWindow(WindowId window)
{
    record("hideWindow", {hex(window)});
}

void FakePlatform::setWindowPos(WindowId window, ZOrder order, const QRect& geometry, quint32 flags)
{
    record("setWindowPos", {hex(window), zOrder(order), rect(geometry), hex(flags)});
}

void FakePlatform::moveWindow(WindowId window, const QRect& geometry, bool repaint)
{
    record("moveWindow", {hex(window), rect(geometry), boolean(repaint)});
}

QRect FakePlatform::windowRect(WindowId window)
{
    record("windowRect", {hex(window)});
    return windowRects.value(window);
}

void FakePlatform::bringWindowToTop(WindowId window)
{
    record("bringWindowToTop", {hex(window)});
}

void FakePlatform::setForegroundWindow(WindowId window)
{
    record("setForegroundWindow", {hex(window)});
}

void FakePlatform::redrawWindow(WindowId window, quint32 flags)
{
    record("redrawWindow", {hex(window), hex(flags)});
}

void FakePlatform::setBottomRoundedRegion(WindowId window, const QSize& size, int corner)
{
    record("setBottomRoundedRegion",
           {hex(window), QStringLiteral("%1x%2").arg(size.width()).arg(size.height()),
            QString::number(corner)});
}

void FakePlatform::postCloseMessage(WindowId window)
{
    record("postCloseMessage", {hex(window)});
}
