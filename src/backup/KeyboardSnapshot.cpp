#include "KeyboardSnapshot.h"

#include "DialogDeviceConnect.h"

namespace {

constexpr int kIdentityVersionOffset = 7;

quint8 byteAt(const QByteArray& bytes, int i)
{
    return i < bytes.size() ? static_cast<quint8>(bytes.at(i)) : 0;
}

} // namespace

KeyboardSnapshot::Light KeyboardSnapshot::Light::fromReply(const QByteArray& reply)
{
    return {.effect = byteAt(reply, 1),
            .speed = byteAt(reply, 2),
            .brightness = byteAt(reply, 3),
            .option = byteAt(reply, 4),
            .red = byteAt(reply, 5),
            .green = byteAt(reply, 6),
            .blue = byteAt(reply, 7)};
}

bool KeyboardSnapshot::keeps(const MagnetTables::Table& table)
{
    return table.number != MagnetTables::kSensorTable;
}

quint16 KeyboardSnapshot::identityVersion(const QByteArray& info)
{
    if (info.size() < kIdentityVersionOffset + 2) return 0;
    return quint16(byteAt(info, kIdentityVersionOffset) | byteAt(info, kIdentityVersionOffset + 1)
                                                              << 8);
}

void KeyboardSnapshot::takeKeyLayers(const DialogDeviceConnect& device, int profile)
{
    for (int layer = 0; layer < kLayers; ++layer)
        keyLayers[profile][layer] = device.GetKeyMatrix(layer);
}

void KeyboardSnapshot::takeSettings(const DialogDeviceConnect& device)
{
    deviceId = device.GetDeviceId();
    firmwareVersion = identityVersion(device.GetDeviceInfo());
    activeProfile = device.GetCurrentProfile();
    fnLayer = device.GetFnMatrix(0);
    hasMagnetism = device.VersionAtLeast300();
    for (const MagnetTables::Table& t : MagnetTables::kTables) {
        const int index = MagnetTables::indexOf(t.number);
        magnetTables[index] =
            hasMagnetism && keeps(t) ? device.GetMagnetTable(index) : QByteArray();
    }
    options = device.GetKbOptions().mid(1);
    reportRate = device.GetReportRate();
    debounce = device.GetDebounce();
    sleepTimes = device.GetSleepTimes();
}

QString KeyboardSnapshot::incomplete() const
{
    QStringList missing;
    for (int p = 0; p < kProfiles; ++p)
        for (int layer = 0; layer < kLayers; ++layer)
            if (keyLayers[p][layer].size() != kLayerBytes)
                missing << QStringLiteral("profile %1 layer %2").arg(p).arg(layer);
    if (fnLayer.size() != kFnBytes) missing << QStringLiteral("Fn layer");
    for (const MagnetTables::Table& t : MagnetTables::kTables) {
        const int expected = hasMagnetism && keeps(t) ? kPositions * t.width : 0;
        if (magnetTables[MagnetTables::indexOf(t.number)].size() != expected)
            missing << QString::fromLatin1(t.name);
    }
    if (options.size() != kOptionBytes) missing << QStringLiteral("option block");
    for (int slot = 0; slot < kPictureSlots; ++slot)
        if (pictures[slot].size() != kPictureBytes)
            missing << QStringLiteral("picture %1").arg(slot);
    return missing.join(QStringLiteral(", "));
}

quint32 KeyboardSnapshot::magnetValue(int tableIndex, int position) const
{
    const int width = MagnetTables::kTables[tableIndex].width;
    const QByteArray& table = magnetTables[tableIndex];
    quint32 v = 0;
    for (int b = width - 1; b >= 0; --b)
        v = (v << 8) | byteAt(table, position * width + b);
    return v;
}
