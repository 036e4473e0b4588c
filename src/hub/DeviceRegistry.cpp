#include "DeviceRegistry.h"

#include "Clock.h"
#include "EnumerationPass.h"
#include "HubLog.h"
#include "OrbeDeviceBase.h"
#include "UserSettings.h"

#include <QDateTime>
#include <QMutexLocker>

DeviceRegistry::DeviceRegistry(HidBackend* backend, Clock* registryClock, const QString& dir,
                               QObject* parent)
    : QObject(parent), hid(backend), clock(registryClock), appDir(dir),
      epochAtStart(QDateTime::currentSecsSinceEpoch() - registryClock->elapsedMs() / 1000),
      kept(backend)
{
    qRegisterMetaType<DeviceEnumInfo>();
    qRegisterMetaType<QList<DeviceEnumInfo>>();
}

DeviceRegistry::~DeviceRegistry() = default;

quint32 DeviceRegistry::nowSeconds() const
{
    return quint32(epochAtStart + clock->elapsedMs() / 1000);
}

bool DeviceRegistry::enumerateDevices(const std::function<bool()>& stop)
{
    if (scanSuspended || (!windowShown && !hostedWindow)) return false;
    bool idle = false;
    if (!scanning.compare_exchange_strong(idle, true)) return false;

    EnumerationPass::Setup setup;
    setup.hid = hid;
    setup.clock = clock;
    setup.kept = &kept;
    setup.appDir = appDir;
    setup.tarnwickBuild = tarnwickBuild;
    setup.stop = stop;
    EnumerationPass pass(*this, setup);
    const std::optional<QStringList> seen = pass.run();
    {
        QMutexLocker lock(&mutex);
        unanswered = pass.unansweredDevice();
    }
    if (seen) {
        age(*seen);
        emit oEnumDeiceDone(records());
    } else {
        qCDebug(lcHub) << "pass stopped";
    }
    scanning = false;
    return seen.has_value();
}

QString DeviceRegistry::unansweredDevice() const
{
    QMutexLocker lock(&mutex);
    return unanswered;
}

void DeviceRegistry::addDevice(quint16 vendorId, quint16 productId, quint64 id,
                               const QString& vendorPath, const QString& devicePath, int connection,
                               int family)
{
    QString name;
    quint16 deviceType = 0xFFFF;
    quint16 connectionType = quint16(connection);
    if (family == DeviceEnumInfo::CloudFamily) {
        if (id == 0 || id > kLargestCloudId) return;
        name = OrbeDeviceBase::lookupName(quint32(id), deviceType,
                                          tarnwickBuild ? 1 : OrbeDeviceBase::kFirstBrand, appDir);
    } else {
        id = OrbeDeviceBase::lookupCustom(vendorId, productId, id, name, deviceType, connectionType,
                                          appDir);
    }
    if (name.isEmpty()) {
        qCDebug(lcHub).nospace() << "not supported: family " << family << " id " << Qt::hex << id
                                 << " at " << devicePath;
        return;
    }

    const quint32 now = nowSeconds();
    QMutexLocker lock(&mutex);
    for (DeviceEnumInfo& record : list) {
        if (record.devicePath != devicePath) continue;
        // Only the id and the sighting change: name, type and connection stay as first seen.
        record.deviceId = id;
        record.online = true;
        record.lastSeen = now;
        return;
    }
    DeviceEnumInfo record;
    record.deviceId = id;
    record.family = quint8(family);
    record.connectionType = quint8(connectionType & 0xFF);
    record.deviceType = quint8(deviceType & 0xFF);
    record.displayName = name;
    record.vendorPath = vendorPath;
    record.devicePath = devicePath;
    record.online = true;
    record.reserved = 0;
    record.lastSeen = now;
    record.vendorId = vendorId;
    record.productId = productId;
    qCDebug(lcHub).nospace() << "new device " << name << " family " << family << " connection "
                             << record.connectionType << " at " << devicePath;
    list.append(record);
}

void DeviceRegistry::age(const QStringList& seen)
{
    const qint64 now = nowSeconds();
    bool lostCurrent = false;
    {
        QMutexLocker lock(&mutex);
        for (qsizetype i = list.size() - 1; i >= 0; --i) {
            DeviceEnumInfo& record = list[i];
            if (!seen.contains(record.devicePath)) {
                if (record.devicePath == currentPath) {
                    qCDebug(lcHub) << "Lost:" << record.displayName << "Set OrbeReturn 1";
                    lostCurrent = true;
                }
                record.online = false;
            }
            if (now - qint64(record.lastSeen) > kOnlineSeconds) record.online = false;
        }
    }
    if (lostCurrent) {
        raiseReturnFlag();
        emit currentDeviceLost();
    }
}

void DeviceRegistry::raiseReturnFlag()
{
    const auto settings = UserSettings::open(tarnwickBuild);
    settings->setValue(QLatin1String(UserSettings::kReturnKey), 1);
    settings->sync();
    if (settings->status() != QSettings::NoError)
        qCWarning(lcHub) << "could not write" << settings->fileName();
}

void DeviceRegistry::setCurrentDevice(const QString& devicePath)
{
    QMutexLocker lock(&mutex);
    currentPath = devicePath;
}

QString DeviceRegistry::current() const
{
    QMutexLocker lock(&mutex);
    return currentPath;
}

QList<DeviceEnumInfo> DeviceRegistry::records() const
{
    QMutexLocker lock(&mutex);
    return list; // implicitly shared: the pass's next write detaches its own list
}

int DeviceRegistry::onlineCount() const
{
    QMutexLocker lock(&mutex);
    return int(std::count_if(list.begin(), list.end(), [](const auto& r) { return r.online; }));
}

void DeviceRegistry::clear()
{
    QMutexLocker lock(&mutex);
    list.clear();
}
