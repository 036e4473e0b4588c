#include "BatteryReader.h"

#include "Clock.h"
#include "DeviceEnumInfo.h"
#include "HidBackend.h"
#include "HubLog.h"

#include <vector>

namespace BatteryReader {

namespace {

std::optional<int> readCloud(HidBackend& hid, Clock& clock, HidHandle* handle)
{
    std::vector<quint8> request(kCloudRequestBuffer, 0);
    std::vector<quint8> reply(kCloudReplyBuffer, 0);
    int got = 0;
    for (int round = 0; round < kCloudRounds; ++round) {
        request[1] = kCloudStatusCommand;
        request[2] = 0;
        request[kCloudChecksumOffset] = quint8(0xFF - request[1] - request[2]);
        hid.sendFeatureReport(handle, request.data(), kCloudReportLength);
        clock.sleepMs(kCloudWaitMs);
        got = hid.getFeatureReport(handle, reply.data(), kCloudReportLength);
        if (reply[kCloudLinkOffset] == 1) break;
    }
    return got > 0 ? int(reply[kCloudBatteryOffset]) : 0;
}

std::optional<int> readWs(HidBackend& hid, Clock& clock, HidHandle* handle)
{
    int battery = 0;
    std::vector<quint8> reply(kWsReplyLength, 0);
    for (int round = 0; round < kWsRounds; ++round) {
        hid.write(handle, kWsBatteryRequest.data(), kWsBatteryRequest.size());
        clock.sleepMs(kWsWaitMs);
        std::fill(reply.begin(), reply.end(), 0);
        if (hid.readTimeout(handle, reply.data(), reply.size(), kWsReadTimeoutMs) > 0)
            battery = reply[kWsBatteryOffset];
        if (battery <= kWsLargestCharge) break;
    }
    return battery;
}

} // namespace

std::optional<int> read(HidBackend& hid, Clock& clock, quint8 family, const QString& devicePath)
{
    if (family != DeviceEnumInfo::CloudFamily && family != DeviceEnumInfo::WsFamily) return 0;
    HidHandle* handle = hid.openPath(devicePath.toUtf8());
    if (!handle) {
        qCDebug(lcHub) << "battery: cannot open" << devicePath;
        return std::nullopt;
    }
    const std::optional<int> battery = family == DeviceEnumInfo::CloudFamily
                                           ? readCloud(hid, clock, handle)
                                           : readWs(hid, clock, handle);
    hid.close(handle);
    qCDebug(lcHub) << "battery of" << devicePath << ":" << battery.value_or(-1);
    return battery;
}

} // namespace BatteryReader
