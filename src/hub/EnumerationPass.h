#pragma once

#include "HidBackend.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

class Clock;
class DeviceRegistry;
class KeptHandles;

// One walk over the machine's HID devices in four passes, one per family. Each device that
// answers its probe goes to DeviceRegistry::addDevice; run() gives the paths it saw, for the
// ageing that follows.
class EnumerationPass
{
public:
    struct Setup
    {
        HidBackend* hid = nullptr;
        Clock* clock = nullptr;
        KeptHandles* kept = nullptr;
        QString appDir;
        bool tarnwickBuild = false;
        std::function<bool()> stop;
    };

    // The vendor ids of "VIDset0" and "VIDset1" in config/enumsetting.ini, defaults when unset.
    struct VidSets
    {
        QList<quint16> set0;
        QList<quint16> set1;
    };
    static VidSets readVidSets(const QString& appDir);

    EnumerationPass(DeviceRegistry& registry, Setup setup);

    // The paths seen, or nothing when the pass was stopped.
    std::optional<QStringList> run();
    // After a stopped pass: the device it was waiting on that never answered its identity
    // request; empty when the pass was stopped elsewhere.
    QString unansweredDevice() const { return unanswered; }

private:
    bool stopped() const { return setup.stop && setup.stop(); }
    bool passCloudFamily(const QList<quint16>& vendors);
    void probeBluetooth(const HidDeviceInfo& entry);
    bool checkPending(const HidDeviceInfo& entry);
    void passWsFamily();
    void passByFamily();
    void passJmFamily();

    DeviceRegistry& registry;
    Setup setup;
    HidBackend& hid;
    QStringList seen;
    QString pendingVendorPath;
    QString pendingDevicePath;
    QString unanswered;
};
