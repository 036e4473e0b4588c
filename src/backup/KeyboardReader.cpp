#include "KeyboardReader.h"

#include "CommandLayouts.h"
#include "DialogDeviceConnect.h"

#include <algorithm>

namespace {

constexpr int kReadFrameLength = 8;

} // namespace

KeyboardReader::KeyboardReader(DialogDeviceConnect& d, Clock& clock, QObject* parent)
    : QObject(parent), device(d), steps(d, clock)
{
    connect(&device, &DialogDeviceConnect::onReadBack, this, &KeyboardReader::takeReply);
}

void KeyboardReader::start(quint8 current, bool currentIsFresh, quint8 last)
{
    shot = KeyboardSnapshot();
    if (current >= KeyboardSnapshot::kProfiles || last >= KeyboardSnapshot::kProfiles) {
        // A profile byte out of range came from the keyboard's 84 reply.
        emit failed(QStringLiteral("the keyboard reported profile %1, not one of 0 to 3")
                        .arg(std::max(current, last)));
        return;
    }
    if (currentIsFresh && current != last) shot.takeKeyLayers(device, current);
    for (quint8 p = 0; p < KeyboardSnapshot::kProfiles; ++p) {
        if (p == last || (p == current && currentIsFresh)) continue;
        steps.add(
            QStringLiteral("reading profile %1").arg(p), [this, p] { device.DoSetProfile(p); },
            [this, p] { shot.takeKeyLayers(device, p); });
    }
    steps.add(
        QStringLiteral("reading profile %1").arg(last), [this, last] { device.DoSetProfile(last); },
        [this, last] {
            shot.takeKeyLayers(device, last);
            shot.takeSettings(device);
            shot.lighting = KeyboardSnapshot::Light::fromReply(ledReply);
            shot.sideLight = KeyboardSnapshot::Light::fromReply(sideReply);
        });
    for (quint8 slot = 0; slot < KeyboardSnapshot::kPictureSlots; ++slot)
        steps.add(
            QStringLiteral("reading picture %1").arg(slot),
            [this, slot] { device.DoReadUserPic(slot); },
            [this, slot] { shot.pictures[slot] = device.GetUserPicture(); });
    // The light switch has no place in the cache: its reply is taken as it passes.
    steps.add(QStringLiteral("reading the light switch"), [this] {
        switchReply.clear();
        device.DoSendCommand(CommandLayouts::CMD_GET_LEDONOFF, kReadFrameLength, true);
    });
    steps.run([this] { finish(); }, [this](const QString& why) { emit failed(why); });
}

void KeyboardReader::takeReply(const QByteArray& reply)
{
    if (reply.isEmpty()) return;
    switch (static_cast<quint8>(reply.at(0))) {
    case CommandLayouts::CMD_GET_LEDPARAM:
        ledReply = reply;
        break;
    case CommandLayouts::CMD_GET_SLEDPARAM:
        sideReply = reply;
        break;
    case CommandLayouts::CMD_GET_LEDONOFF:
        switchReply = reply;
        break;
    default:
        break;
    }
}

void KeyboardReader::finish()
{
    QString missing = shot.incomplete();
    if (ledReply.size() < 8 || sideReply.size() < 8) missing += QStringLiteral(" lighting");
    if (switchReply.size() < 2) missing += QStringLiteral(" light switch");
    if (!missing.isEmpty()) {
        emit failed(
            QStringLiteral("the keyboard's answers were incomplete (%1)").arg(missing.trimmed()));
        return;
    }
    shot.ledOn = switchReply.at(1) != 0;
    emit done();
}
