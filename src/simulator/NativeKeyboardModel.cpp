#include "NativeKeyboardModel.h"

#include "DefaultKeyMaps.h"
#include "SimulatorLog.h"

#include <algorithm>
#include <vector>

namespace {

using State = KeyboardState;

// Offsets inside a logical frame.
constexpr int kChecksumOffset = 7;
constexpr int kPayloadOffset = 8;
constexpr int kPayloadSize = 56;
constexpr int kPageSize = 64;
constexpr quint8 kAllKeys = 0xFF;
constexpr quint8 kSensorTable = 0xFE;

// The calibration scan as the simulator plays it: the keys of the factory matrix go down one
// after another, each reaching its full reading over kRampMs.
constexpr qint64 kPressIntervalMs = 300;
constexpr qint64 kRampMs = 250;
constexpr quint32 kFullReading = 760;
constexpr int kShortRangePosition = 92; // that key's range is far smaller
constexpr quint32 kShortRangeReading = 80;

quint8 at(const QByteArray& f, int i)
{
    return static_cast<quint8>(f.at(i));
}

quint32 u32At(const QByteArray& f, int i)
{
    return at(f, i) | (at(f, i + 1) << 8) | (at(f, i + 2) << 16) | (quint32(at(f, i + 3)) << 24);
}

QByteArray reply(quint8 command)
{
    QByteArray r(NativeKeyboardModel::kReplySize, '\0');
    r[0] = static_cast<char>(command);
    return r;
}

QByteArray echo(const QByteArray& f)
{
    return f.left(NativeKeyboardModel::kReplySize);
}

// A 64-byte page of a store; zeros where the store ends.
QByteArray page(const QByteArray& store, int pageIndex)
{
    return store.mid(pageIndex * kPageSize, kPageSize).leftJustified(kPageSize, '\0');
}

QByteArray ledReply(quint8 command, quint8 effect, const LedParams& p)
{
    QByteArray r = reply(command);
    const quint8 bytes[] = {effect, p.speed, p.brightness, p.option, p.red, p.green, p.blue};
    for (int i = 0; i < int(std::size(bytes)); ++i)
        r[1 + i] = static_cast<char>(bytes[i]);
    return r;
}

LedParams ledFromFrame(const QByteArray& f)
{
    return {.speed = at(f, 2),
            .brightness = at(f, 3),
            .option = at(f, 4),
            .red = at(f, 5),
            .green = at(f, 6),
            .blue = at(f, 7)};
}

// ---- Handlers: one per command byte. Each gets the frame padded to at least 64 bytes.

quint16 versionOf(const State& s)
{
    return quint16(at(s.info, 7) | (at(s.info, 8) << 8));
}

// The keyboard keeps who it is and what time it is; everything else goes back.
void resetToFactory(State& s)
{
    const qint64 now = s.nowMs;
    s = State::factory(u32At(s.info, 1), versionOf(s));
    s.nowMs = now;
}

QByteArray factoryReset(State& s, const QByteArray& f)
{
    resetToFactory(s);
    return echo(f);
}

QByteArray setReportRate(State& s, const QByteArray& f)
{
    s.reportRate = at(f, 2);
    return echo(f);
}

QByteArray getReportRate(State& s, const QByteArray&)
{
    QByteArray r = reply(0x83);
    r[2] = static_cast<char>(s.reportRate);
    return r;
}

QByteArray setProfile(State& s, const QByteArray& f)
{
    if (at(f, 1) < State::kProfiles) s.profile = at(f, 1);
    return echo(f);
}

QByteArray getProfile(State& s, const QByteArray&)
{
    QByteArray r = reply(0x84);
    r[1] = static_cast<char>(s.profile);
    return r;
}

QByteArray setLedOnOff(State& s, const QByteArray& f)
{
    s.ledOnOff = {at(f, 1), at(f, 2)};
    return echo(f);
}

QByteArray getLedOnOff(State& s, const QByteArray&)
{
    QByteArray r = reply(0x85);
    r[1] = static_cast<char>(s.ledOnOff[0]);
    r[2] = static_cast<char>(s.ledOnOff[1]);
    return r;
}

QByteArray setDebounce(State& s, const QByteArray& f)
{
    s.debounce = at(f, 1);
    return echo(f);
}

QByteArray getDebounce(State& s, const QByteArray&)
{
    QByteArray r = reply(0x86);
    r[1] = static_cast<char>(s.debounce);
    return r;
}

QByteArray setLedParams(State& s, const QByteArray& f)
{
    s.ledEffect = at(f, 1);
    s.led[s.ledEffect] = ledFromFrame(f);
    return echo(f);
}

QByteArray getLedParams(State& s, const QByteArray&)
{
    return ledReply(0x87, s.ledEffect, s.led[s.ledEffect]);
}

QByteArray setSideLedParams(State& s, const QByteArray& f)
{
    s.sideEffect = at(f, 1);
    s.sideLed[s.sideEffect] = ledFromFrame(f);
    return echo(f);
}

QByteArray getSideLedParams(State& s, const QByteArray&)
{
    return ledReply(0x88, s.sideEffect, s.sideLed[s.sideEffect]);
}

QByteArray setOptions(State& s, const QByteArray& f)
{
    for (int i = 1; i < State::kBlockSize; ++i)
        if (i != kChecksumOffset) // the checksum overwrote whatever the host had there
            s.options[i] = f.at(i);
    return echo(f);
}

QByteArray getOptions(State& s, const QByteArray&)
{
    QByteArray r = s.options;
    r[0] = char(0x89);
    return r;
}

QByteArray setKeyEntry(State& s, const QByteArray& f)
{
    const int profile = at(f, 1);
    const int position = at(f, 2);
    const int layer = at(f, 6);
    if (profile < State::kProfiles && layer < State::kLayers && position < State::kPositions)
        s.keyMaps[profile][layer].replace(position * State::kEntrySize, State::kEntrySize,
                                          f.mid(kPayloadOffset, State::kEntrySize));
    return echo(f);
}

QByteArray getKeyPage(State& s, const QByteArray& f)
{
    const int profile = at(f, 1);
    const int layer = at(f, 4);
    if (profile >= State::kProfiles || layer >= State::kLayers) return QByteArray(kPageSize, '\0');
    return page(s.keyMaps[profile][layer], at(f, 3));
}

QByteArray setMacroPage(State& s, const QByteArray& f)
{
    const int id = at(f, 1);
    if (id >= State::kMacroSlots) return echo(f);
    QByteArray& blob = s.macros[id];
    const int offset = at(f, 2) * kPayloadSize;
    if (blob.size() < offset + kPayloadSize) blob.resize(offset + kPayloadSize, '\0');
    blob.replace(offset, kPayloadSize, f.mid(kPayloadOffset, kPayloadSize));
    if (at(f, 4) != 0) // the last page ends the blob; a longer one written before is gone
        blob.truncate(offset + kPayloadSize);
    return echo(f);
}

QByteArray setPicturePage(State& s, const QByteArray& f)
{
    const int slot = at(f, 1);
    const int offset = at(f, 3) * kPayloadSize;
    if (slot < State::kPictureSlots && offset + kPayloadSize <= State::kPictureSize)
        s.pictures[slot].replace(offset, kPayloadSize, f.mid(kPayloadOffset, kPayloadSize));
    return echo(f);
}

QByteArray getPicturePage(State& s, const QByteArray& f)
{
    const int slot = at(f, 1);
    if (slot >= State::kPictureSlots) return QByteArray(kPageSize, '\0');
    return page(s.pictures[slot], at(f, 3));
}

QByteArray setMusic(State& s, const QByteArray& f)
{
    s.musicLevels = f.mid(kPayloadOffset, State::kMusicLevels);
    return echo(f);
}

QByteArray getInfo(State& s, const QByteArray&)
{
    return s.info;
}

QByteArray setFnEntry(State& s, const QByteArray& f)
{
    const int position = at(f, 3);
    if ((position + 1) * State::kEntrySize <= State::kFnSize)
        s.fnMap.replace(position * State::kEntrySize, State::kEntrySize,
                        f.mid(kPayloadOffset, State::kEntrySize));
    return echo(f);
}

QByteArray getFnPage(State& s, const QByteArray& f)
{
    return page(s.fnMap, at(f, 4));
}

QByteArray setSleepTimes(State& s, const QByteArray& f)
{
    for (int i = 0; i < State::kSleepSlots; ++i)
        s.sleepTimes[i] =
            quint16(at(f, kPayloadOffset + 2 * i) | (at(f, kPayloadOffset + 2 * i + 1) << 8));
    return echo(f);
}

QByteArray getSleepTimes(State& s, const QByteArray&)
{
    QByteArray r = reply(0x91);
    for (int i = 0; i < State::kSleepSlots; ++i) {
        r[kPayloadOffset + 2 * i] = static_cast<char>(s.sleepTimes[i] & 0xFF);
        r[kPayloadOffset + 2 * i + 1] = static_cast<char>(s.sleepTimes[i] >> 8);
    }
    return r;
}

QByteArray setKeyTest(State& s, const QByteArray& f)
{
    s.keyTest = at(f, 1) != 0;
    return echo(f);
}

QByteArray setCalibration(State& s, const QByteArray& f)
{
    const bool on = at(f, 1) != 0;
    if (on && !s.calibrating) {
        s.calibrationStartMs = s.nowMs;
        const int sensor = *magnetTableIndex(kSensorTable);
        s.magnetTables[sensor].fill('\0');
    }
    s.calibrating = on;
    return echo(f);
}

QByteArray writeMagnetism(State& s, const QByteArray& f)
{
    const auto table = magnetTableIndex(at(f, 1));
    const int position = at(f, 3);
    if (!table) return echo(f);
    const quint32 value = u32At(f, kPayloadOffset); // the table's width cuts it on storing
    if (position == kAllKeys) {
        for (int p = 0; p < State::kPositions; ++p)
            s.setMagnetValue(*table, p, value);
    } else if (position < State::kPositions) {
        s.setMagnetValue(*table, position, value);
    }
    return echo(f);
}

QByteArray readMagnetism(State& s, const QByteArray& f)
{
    const auto table = magnetTableIndex(at(f, 1));
    if (!table) return echo(f);
    return page(s.magnetTables[*table], at(f, 3));
}

using Handler = QByteArray (*)(State&, const QByteArray&);

struct CommandHandler
{
    quint8 command;
    Handler run;
};

// What the firmware answers to; anything else is echoed.
constexpr std::array kHandlers{
    CommandHandler{0x01, &factoryReset},     CommandHandler{0x03, &setReportRate},
    CommandHandler{0x83, &getReportRate},    CommandHandler{0x04, &setProfile},
    CommandHandler{0x84, &getProfile},       CommandHandler{0x05, &setLedOnOff},
    CommandHandler{0x85, &getLedOnOff},      CommandHandler{0x06, &setDebounce},
    CommandHandler{0x86, &getDebounce},      CommandHandler{0x07, &setLedParams},
    CommandHandler{0x87, &getLedParams},     CommandHandler{0x08, &setSideLedParams},
    CommandHandler{0x88, &getSideLedParams}, CommandHandler{0x09, &setOptions},
    CommandHandler{0x89, &getOptions},       CommandHandler{0x0A, &setKeyEntry},
    CommandHandler{0x8A, &getKeyPage},       CommandHandler{0x0B, &setMacroPage},
    CommandHandler{0x0C, &setPicturePage},   CommandHandler{0x8C, &getPicturePage},
    CommandHandler{0x0D, &setMusic},         CommandHandler{0x8F, &getInfo},
    CommandHandler{0x10, &setFnEntry},       CommandHandler{0x90, &getFnPage},
    CommandHandler{0x11, &setSleepTimes},    CommandHandler{0x91, &getSleepTimes},
    CommandHandler{0x1B, &setKeyTest},       CommandHandler{0x1E, &setCalibration},
    CommandHandler{0x65, &writeMagnetism},   CommandHandler{0xE5, &readMagnetism},
};

// The order in which the simulated user presses keys during a calibration: every position
// that has a key in the factory matrix.
const std::vector<int>& calibrationOrder()
{
    static const std::vector<int> order = [] {
        std::vector<int> positions;
        const QByteArray map = DefaultKeyMaps::factoryKeyMap();
        for (int p = 0; p < KeyboardState::kPositions; ++p)
            if (map.mid(p * KeyboardState::kEntrySize, KeyboardState::kEntrySize).count('\0') !=
                KeyboardState::kEntrySize)
                positions.push_back(p);
        return positions;
    }();
    return order;
}

} // namespace

NativeKeyboardModel::NativeKeyboardModel(quint32 deviceId, quint16 firmwareVersion)
    : s(KeyboardState::factory(deviceId, firmwareVersion))
{
}

QByteArray NativeKeyboardModel::handle(const QByteArray& frame)
{
    const QByteArray f = frame.leftJustified(kReplySize, '\0');
    received.append(f);
    const quint8 command = at(f, 0);
    const auto it =
        std::find_if(kHandlers.begin(), kHandlers.end(),
                     [command](const CommandHandler& h) { return h.command == command; });
    if (it == kHandlers.end()) {
        qCDebug(lcSimulator, "command %02X is not known, echoed", command);
        return echo(f);
    }
    QByteArray answer = it->run(s, f);
    updateCalibration();
    return answer;
}

void NativeKeyboardModel::setNow(qint64 milliseconds)
{
    s.nowMs = milliseconds;
    updateCalibration();
}

void NativeKeyboardModel::updateCalibration()
{
    if (!s.calibrating) return;
    const int sensor = *magnetTableIndex(kSensorTable);
    const std::vector<int>& order = calibrationOrder();
    for (int i = 0; i < int(order.size()); ++i) {
        const qint64 pressed = s.nowMs - (s.calibrationStartMs + i * kPressIntervalMs);
        if (pressed <= 0) break;
        const int position = order[i];
        const quint32 full = position == kShortRangePosition ? kShortRangeReading : kFullReading;
        const quint32 reading = quint32(std::min<qint64>(full, full * pressed / kRampMs));
        // The scan reports the deepest travel seen so far.
        if (reading > s.magnetValue(sensor, position)) s.setMagnetValue(sensor, position, reading);
    }
}

void NativeKeyboardModel::factoryReset()
{
    resetToFactory(s);
}

void NativeKeyboardModel::setDeviceId(quint32 deviceId)
{
    for (int i = 0; i < 4; ++i)
        s.info[1 + i] = static_cast<char>((deviceId >> (8 * i)) & 0xFF);
}

void NativeKeyboardModel::setFirmwareVersion(quint16 firmwareVersion)
{
    s.info[7] = static_cast<char>(firmwareVersion & 0xFF);
    s.info[8] = static_cast<char>(firmwareVersion >> 8);
}

quint32 NativeKeyboardModel::deviceId() const
{
    return u32At(s.info, 1);
}

quint16 NativeKeyboardModel::firmwareVersion() const
{
    return versionOf(s);
}

QByteArray NativeKeyboardModel::keyMap(int profile, int layer) const
{
    if (profile < 0 || profile >= KeyboardState::kProfiles || layer < 0 ||
        layer >= KeyboardState::kLayers)
        return {};
    return s.keyMaps[profile][layer];
}

QByteArray NativeKeyboardModel::keyEntry(int profile, int layer, int position) const
{
    if (position < 0) return QByteArray(KeyboardState::kEntrySize, '\0');
    return keyMap(profile, layer)
        .mid(position * KeyboardState::kEntrySize, KeyboardState::kEntrySize)
        .leftJustified(KeyboardState::kEntrySize, '\0');
}

QByteArray NativeKeyboardModel::fnEntry(int position) const
{
    if (position < 0) return QByteArray(KeyboardState::kEntrySize, '\0');
    return s.fnMap.mid(position * KeyboardState::kEntrySize, KeyboardState::kEntrySize)
        .leftJustified(KeyboardState::kEntrySize, '\0');
}

quint32 NativeKeyboardModel::magnetValue(quint8 table, int position) const
{
    const auto index = magnetTableIndex(table);
    if (!index || position < 0 || position >= KeyboardState::kPositions) return 0;
    return s.magnetValue(*index, position);
}

QByteArray NativeKeyboardModel::magnetTable(quint8 table) const
{
    const auto index = magnetTableIndex(table);
    return index ? s.magnetTables[*index] : QByteArray();
}

QByteArray NativeKeyboardModel::picture(int slot) const
{
    return slot >= 0 && slot < KeyboardState::kPictureSlots ? s.pictures[slot] : QByteArray();
}

QByteArray NativeKeyboardModel::macro(int macroId) const
{
    return macroId >= 0 && macroId < KeyboardState::kMacroSlots ? s.macros[macroId] : QByteArray();
}

void NativeKeyboardModel::setMagnetValue(quint8 table, int position, quint32 value)
{
    const auto index = magnetTableIndex(table);
    if (index && position >= 0 && position < KeyboardState::kPositions)
        s.setMagnetValue(*index, position, value);
}
