#pragma once

#include "DeviceParts.h"

#include <QString>
#include <memory>

class ClockTimer;

// Connecting: the device the window hands over, the connect step that opens its handles and
// starts the first command chain, and the refresh that a burst of hot-plug notices ends in.
class ConnectSteps
{
public:
    static constexpr int kHotplugQuietMs = 800;

    explicit ConnectSteps(const DeviceParts& parts);
    ~ConnectSteps();

    void DoConnectDevice(quint16 vid, quint16 pid, bool isWireless, const QString& idText,
                         const QString& path);
    // Closes what is open and opens the device again: the wireless path, or the wired ids of
    // the console's texts.
    void connectStep();
    // Lists the product ids of the VID text's vendor, then connects.
    void refreshStep();
    void selectPid(const QString& pidText);
    void onDevicePluggined();

private:
    void finishWired(bool input, bool command, bool complete);
    void finish();

    DeviceParts p;
    QString deviceIdText;
    QString devicePath;
    std::unique_ptr<ClockTimer> hotplugTimer;
};
