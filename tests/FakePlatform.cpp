#include "FakePlatform.h"

#include <QFileInfo>

namespace {

QString nameOf(const QString& operation)
{
    return operation.left(operation.indexOf(u'('));
}

} // namespace

FakePlatform& FakePlatform::shared()
{
    static FakePlatform platform;
    return platform;
}

QStringList FakePlatform::operationsNamed(std::initializer_list<const char*> names) const
{
    QStringList wanted;
    for (const char* name : names)
        wanted << QString::fromLatin1(name);
    QStringList out;
    for (const QString& op : operations)
        if (wanted.contains(nameOf(op))) out << op;
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

void FakePlatform::setUserValue(const QString& key, const QVariant& value)
{
    record("setUserValue", {text(key), value.typeId() == QMetaType::QString ? text(value.toString())
                                                                            : value.toString()});
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

void FakePlatform::setWindowPos(WindowId window, ZOrder order, const QRect& geometry, quint32 flags)
{
    static const char* const orders[] = {"Top", "Bottom", "TopMost", "NoTopMost"};
    record("setWindowPos", {hex(window), orders[int(order)], rect(geometry), hex(flags)});
}

void FakePlatform::setBottomRoundedRegion(WindowId window, const QSize& size, int corner)
{
    record("setBottomRoundedRegion",
           {hex(window), QStringLiteral("%1x%2").arg(size.width()).arg(size.height()),
            QString::number(corner)});
}
