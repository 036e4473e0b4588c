#include "SingleInstance.h"

#include "AppLog.h"

#include <cstring>

SingleInstance::SingleInstance(const QString& key) : memory(key) {}

SingleInstance::~SingleInstance()
{
    if (memory.isAttached()) memory.detach();
}

bool SingleInstance::claim()
{
    {
        // A segment nobody is attached to any more goes with the last detach; one that a live
        // hub holds stays.
        QSharedMemory stale(memory.key());
        if (stale.attach()) stale.detach();
    }
    if (memory.attach(QSharedMemory::ReadWrite)) {
        qCDebug(lcApp) << "another hub runs: asking it to come forward";
        write(QByteArray(kRaiseRequest));
        memory.detach();
        return false;
    }
    if (!memory.create(kSegmentSize, QSharedMemory::ReadWrite)) {
        // Without a segment the hub still runs; it just can't be found by a second start.
        qCWarning(lcApp) << "single instance segment:" << memory.errorString();
        return true;
    }
    qCDebug(lcApp) << "single instance segment made";
    return true;
}

bool SingleInstance::takeRaiseRequest()
{
    if (!memory.isAttached() || !memory.lock()) return false;
    const auto* data = static_cast<const char*>(memory.constData());
    const QByteArray text = QByteArray(data, qstrnlen(data, memory.size())).trimmed();
    memory.unlock();
    if (text != kRaiseRequest) return false;
    write(QByteArray());
    return true;
}

void SingleInstance::write(const QByteArray& text)
{
    if (!memory.lock()) return;
    char* data = static_cast<char*>(memory.data());
    std::memset(data, 0, size_t(memory.size()));
    std::memcpy(data, text.constData(), size_t(qMin<qsizetype>(text.size(), memory.size())));
    memory.unlock();
}
