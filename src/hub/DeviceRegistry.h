#pragma once

#include "DeviceEnumInfo.h"
#include "KeptHandles.h"

#include <QList>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QStringList>
#include <atomic>
#include <functional>
#include <memory>
#include <vector>

class Clock;
class HidBackend;

// The list of discovered devices and the discovery pass that keeps it up to date. The main
// window owns one and delegates to it; the pass runs on the OrbeDeviceEnum thread, everything
// else on the main thread. The list is guarded by a lock and only copies leave it: the window
// gets a snapshot with every oEnumDeiceDone, and names a device by its path.
class DeviceRegistry : public QObject
{
    Q_OBJECT

public:
    static constexpr quint32 kOnlineSeconds = 60; // a record not sighted for longer goes offline
    static constexpr quint64 kLargestCloudId = 65536;

    // hid and clock must outlive the registry. appDir holds "config/"; empty means the
    // application's directory.
    DeviceRegistry(HidBackend* hid, Clock* clock, const QString& appDir = QString(),
                   QObject* parent = nullptr);
    ~DeviceRegistry() override;

    // ---- The pass. Called on the enumeration thread; returns false when the gate refused it or
    // stop() answered true during it (then neither ageing nor oEnumDeiceDone happen).
    bool enumerateDevices(const std::function<bool()>& stop = {});
    // After a stopped pass: the path of the device that held it by never answering its identity
    // request, or empty when the pass was stopped while it went on.
    QString unansweredDevice() const;

    // Makes or refreshes the record of a probed device; unknown devices are ignored.
    void addDevice(quint16 vendorId, quint16 productId, quint64 id, const QString& vendorPath,
                   const QString& devicePath, int connection, int family);

    // ---- The gate: a pass runs only when no pass runs, scanning isn't suspended, and the
    // window is shown or hosts a sibling's window.
    void setWindowShown(bool shown) { windowShown = shown; }
    void setHostedWindow(bool hosting) { hostedWindow = hosting; }
    void setScanSuspended(bool suspended) { scanSuspended = suspended; }
    bool isScanning() const { return scanning; }

    void setTarnwickBuild(bool on) { tarnwickBuild = on; }
    bool isTarnwickBuild() const { return tarnwickBuild; }
    // The path of the device the open page shows (empty: none); its loss sets "OrbeReturn" to 1.
    void setCurrentDevice(const QString& devicePath);
    QString current() const;

    // ---- The list: copies taken under the lock, in the order of first sighting.
    QList<DeviceEnumInfo> records() const;
    int onlineCount() const;
    // The scan button: empties the list.
    void clear();

    // Seconds since the epoch on the registry's clock.
    quint32 nowSeconds() const;
    QString applicationDir() const { return appDir; }
    int keptHandleCount() const { return kept.count(); }

signals:
    // Ends every pass that ran, with copies of the records as the pass left them. Emitted on
    // the enumeration thread: connect it queued.
    void oEnumDeiceDone(const QList<DeviceEnumInfo>& devices);
    // The record of the open page was not seen by a pass: "OrbeReturn" has been set to 1.
    // Emitted on the enumeration thread.
    void currentDeviceLost();

private:
    void age(const QStringList& seen);
    void raiseReturnFlag();

    HidBackend* hid;
    Clock* clock;
    QString appDir;
    qint64 epochAtStart;
    KeptHandles kept;

    std::atomic<bool> scanning{false};
    std::atomic<bool> scanSuspended{false};
    std::atomic<bool> windowShown{true};
    std::atomic<bool> hostedWindow{false};
    std::atomic<bool> tarnwickBuild{false};

    mutable QMutex mutex;
    QList<DeviceEnumInfo> list;
    QString currentPath;
    QString unanswered;
};
