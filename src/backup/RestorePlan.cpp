#include "RestorePlan.h"

#include "DialogDeviceConnect.h"
#include "KeyPositions.h"

#include <QStringList>
#include <algorithm>

namespace {

using Snapshot = KeyboardSnapshot;
using D = DialogDeviceConnect;

constexpr quint8 kAllKeys = 0xFF;     // DoSetMagnetism's key code for every key
constexpr int kSecondsPerMinute = 60; // DoSetSleepTime takes whole minutes
constexpr int kChecksumOffset = 7;    // the option byte the frame's checksum overwrites
constexpr int kColourOptionLow = 7;   // options from here on carry the colour
constexpr quint8 kLedSpeedSteps = 4;  // DoSetLedSpeed counts the other way round
constexpr int kPictureWriteBytes = 392;
constexpr int kShownValues = 3; // old values listed for a table written to every key

QString hex(const QByteArray& bytes)
{
    return QString::fromLatin1(bytes.toHex().toUpper());
}

QString keyAt(int position)
{
    return QString::asprintf("key %02X (position %d)", CodeOfPosition(quint8(position)), position);
}

// Whether an operation that takes a key code can address this matrix position.
bool reachable(int position)
{
    return position < Snapshot::kPositions &&
           PositionOfCode(CodeOfPosition(quint8(position))) == position;
}

QString colour(quint32 rgb)
{
    return QString::asprintf("#%06X", rgb & 0xFFFFFF);
}

QString colourAt(const QByteArray& picture, int position)
{
    const QByteArray c = picture.mid(position * 3, 3);
    return c.size() == 3 ? QLatin1Char('#') + hex(c) : QStringLiteral("?");
}

struct Builder
{
    const Snapshot& kb;
    const Snapshot& bk;
    RestorePlan& plan;
    bool pictureWritten = false;

    void change(const QString& what, const QString& before, const QString& after,
                bool writable = true)
    {
        plan.changes.append({what, before, after, writable});
    }
    template <class T> bool field(const QString& what, T before, T after)
    {
        if (before == after) return false;
        change(what, QString::number(before), QString::number(after));
        return true;
    }

    void keys();
    void fnLayer();
    void magnetism();
    void options();
    void settings();
    void pictures();
    void light(const QString& name, const QString& optionName, const Snapshot::Light& o,
               const Snapshot::Light& n);
    void lighting();
};

void Builder::keys()
{
    for (int p = 0; p < Snapshot::kProfiles; ++p) {
        for (int pos = 0; pos < Snapshot::kPositions; ++pos) {
            QList<std::pair<quint8, QByteArray>> writes; // layer, entry
            for (int layer = 0; layer < Snapshot::kLayers; ++layer) {
                const QByteArray before = kb.entry(kb.keyLayers[p][layer], pos);
                const QByteArray after = bk.entry(bk.keyLayers[p][layer], pos);
                if (before == after) continue;
                change(QStringLiteral("profile %1 layer %2 %3").arg(p).arg(layer).arg(keyAt(pos)),
                       hex(before), hex(after), reachable(pos));
                if (reachable(pos)) writes.append({quint8(layer), after});
            }
            // The key's layers go as one group: the last one closes it.
            const quint8 code = CodeOfPosition(quint8(pos));
            for (int i = 0; i < writes.size(); ++i)
                plan.keyWrites[p].append(
                    [code, w = writes[i], last = i + 1 == writes.size()](D& d) {
                        d.DoSetKey(code, reinterpret_cast<const quint8*>(w.second.constData()),
                                   w.first, last ? 1 : 0);
                    });
        }
    }
}

void Builder::fnLayer()
{
    for (int pos = 0; pos * Snapshot::kEntrySize < Snapshot::kFnBytes; ++pos) {
        const QByteArray before = kb.entry(kb.fnLayer, pos);
        const QByteArray after = bk.entry(bk.fnLayer, pos);
        if (before == after) continue;
        change(pos < Snapshot::kPositions ? QStringLiteral("Fn layer %1").arg(keyAt(pos))
                                          : QStringLiteral("Fn layer position %1").arg(pos),
               hex(before), hex(after), reachable(pos));
        if (reachable(pos))
            plan.settingsWrites.append([code = CodeOfPosition(quint8(pos)), after](D& d) {
                d.DoSetFn(code, reinterpret_cast<const quint8*>(after.constData()));
            });
    }
}

void Builder::magnetism()
{
    if (!bk.hasMagnetism) return;
    if (!kb.hasMagnetism) {
        change(QStringLiteral("magnetism tables"),
               QStringLiteral("not read (firmware below 0x300)"), QStringLiteral("in the backup"),
               false);
        return;
    }
    std::array<QList<std::pair<quint8, quint32>>, Snapshot::kPositions> perKey; // table, value
    for (const MagnetTables::Table& t : MagnetTables::kTables) {
        if (!Snapshot::keeps(t)) continue;
        const int index = MagnetTables::indexOf(t.number);
        const QString name = QString::fromLatin1(t.name);
        QList<int> differing;
        bool allReachable = true;
        bool uniform = true;
        for (int pos = 0; pos < Snapshot::kPositions; ++pos) {
            uniform = uniform && bk.magnetValue(index, pos) == bk.magnetValue(index, 0);
            if (kb.magnetValue(index, pos) == bk.magnetValue(index, pos)) continue;
            differing.append(pos);
            allReachable = allReachable && reachable(pos);
        }
        if (differing.isEmpty()) continue;
        if (uniform && (differing.size() > 1 || !allReachable)) {
            // One frame for every key, holes included, where the backup has one value.
            QList<quint32> olds;
            for (int pos : differing)
                if (!olds.contains(kb.magnetValue(index, pos)))
                    olds.append(kb.magnetValue(index, pos));
            std::sort(olds.begin(), olds.end());
            QStringList shown;
            for (int i = 0; i < std::min<int>(kShownValues, olds.size()); ++i)
                shown << QString::number(olds[i]);
            if (olds.size() > kShownValues) shown << QStringLiteral("...");
            const quint32 value = bk.magnetValue(index, 0);
            change(QStringLiteral("%1, every key (%2 differ)").arg(name).arg(differing.size()),
                   shown.join(QLatin1Char(' ')), QString::number(value));
            plan.settingsWrites.append(
                [n = t.number, value](D& d) { d.DoSetMagnetism(n, kAllKeys, value, 1); });
            continue;
        }
        for (int pos : differing) {
            change(QStringLiteral("%1, %2").arg(name, keyAt(pos)),
                   QString::number(kb.magnetValue(index, pos)),
                   QString::number(bk.magnetValue(index, pos)), reachable(pos));
            if (reachable(pos)) perKey[pos].append({t.number, bk.magnetValue(index, pos)});
        }
    }
    // A key's values go as one group: the last one commits it.
    for (int pos = 0; pos < Snapshot::kPositions; ++pos)
        for (int i = 0; i < perKey[pos].size(); ++i)
            plan.settingsWrites.append([code = CodeOfPosition(quint8(pos)), w = perKey[pos][i],
                                        commit = i + 1 == perKey[pos].size()](D& d) {
                d.DoSetMagnetism(w.first, code, w.second, commit ? 1 : 0);
            });
}

void Builder::options()
{
    for (int i = 0; i < Snapshot::kOptionBytes; ++i) {
        const quint8 before = quint8(kb.options.at(i));
        const quint8 after = quint8(bk.options.at(i));
        if (before == after) continue;
        const bool writable = i + 1 != kChecksumOffset;
        change(QStringLiteral("option %1").arg(i), QString::number(before), QString::number(after),
               writable);
        if (writable) plan.settingsWrites.append([i, after](D& d) { d.DoSetKbOption(i, after); });
    }
}

void Builder::settings()
{
    if (field(QStringLiteral("report rate"), kb.reportRate, bk.reportRate))
        plan.settingsWrites.append([v = bk.reportRate](D& d) { d.DoSetReportRate(v); });
    if (field(QStringLiteral("debounce"), kb.debounce, bk.debounce))
        plan.settingsWrites.append([v = bk.debounce](D& d) { d.DoSetDebounce(v); });
    for (int slot = 0; slot < Snapshot::kSleepSlots; ++slot) {
        const quint16 after = bk.sleepTimes[slot];
        if (kb.sleepTimes[slot] == after) continue;
        const bool writable = after % kSecondsPerMinute == 0;
        change(QStringLiteral("sleep time %1 (s)").arg(slot), QString::number(kb.sleepTimes[slot]),
               QString::number(after), writable);
        if (writable)
            plan.settingsWrites.append([slot, minutes = after / kSecondsPerMinute](D& d) {
                d.DoSetSleepTime(minutes, slot);
            });
    }
}

void Builder::pictures()
{
    for (int slot = 0; slot < Snapshot::kPictureSlots; ++slot) {
        const QByteArray& before = kb.pictures[slot];
        const QByteArray& after = bk.pictures[slot];
        if (before == after) continue;
        int first = -1;
        int count = 0;
        for (int pos = 0; pos < Snapshot::kPositions; ++pos)
            if (before.mid(pos * 3, 3) != after.mid(pos * 3, 3)) {
                if (first < 0) first = pos;
                ++count;
            }
        change(QStringLiteral("user picture %1 (%2 colours differ, first at %3)")
                   .arg(slot)
                   .arg(count)
                   .arg(keyAt(first)),
               colourAt(before, first), colourAt(after, first));
        pictureWritten = true;
        // A write covers seven pages; the eight bytes behind the 128 colours go as zeros.
        plan.settingsWrites.append([slot, map = after.leftJustified(kPictureWriteBytes, '\0')](
                                       D& d) { d.DoWriteUserPic(quint8(slot), map); });
    }
}

void Builder::light(const QString& name, const QString& optionName, const Snapshot::Light& o,
                    const Snapshot::Light& n)
{
    field(name + QStringLiteral(" effect"), o.effect, n.effect);
    field(name + QStringLiteral(" speed (keyboard's value)"), o.speed, n.speed);
    field(name + QStringLiteral(" brightness"), o.brightness, n.brightness);
    field(name + QLatin1Char(' ') + optionName, o.option, n.option);
    if (o.rgb() != n.rgb())
        change(name + QStringLiteral(" colour"), colour(o.rgb()), colour(n.rgb()));
}

void Builder::lighting()
{
    const Snapshot::Light& n = bk.lighting;
    light(QStringLiteral("light"), QStringLiteral("option"), kb.lighting, n);
    // A picture write switched the effect to the picture; the light goes back whole. Each of
    // these writes the console's row of 07, so the last frame carries every field.
    if (kb.lighting != n || pictureWritten)
        plan.settingsWrites.append([n](D& d) {
            d.DoSetLedEffect(n.effect, 0);
            d.DoSetLedSpeed(quint8(kLedSpeedSteps - n.speed));
            d.DoSetLedBrightness(n.brightness);
            if (n.option < kColourOptionLow) d.DoSetLedColor(n.rgb(), kColourOptionLow);
            d.DoSetLedColor(n.rgb(), n.option);
        });

    const Snapshot::Light& so = kb.sideLight;
    const Snapshot::Light& sn = bk.sideLight;
    light(QStringLiteral("side light"), QStringLiteral("mode"), so, sn);
    if (so != sn)
        plan.settingsWrites.append([sn](D& d) {
            const char block[] = {0,
                                  char(sn.effect),
                                  char(sn.speed),
                                  char(sn.brightness),
                                  char(sn.option),
                                  char(sn.red),
                                  char(sn.green),
                                  char(sn.blue),
                                  0,
                                  0};
            d.DoSetSideLed(QByteArray(block, sizeof block));
        });

    if (kb.ledOn != bk.ledOn) {
        auto text = [](bool on) { return on ? QStringLiteral("on") : QStringLiteral("off"); };
        change(QStringLiteral("light"), text(kb.ledOn), text(bk.ledOn));
        plan.settingsWrites.append([off = !bk.ledOn](D& d) { d.DoSetLedOnOff(off); });
    }
}

} // namespace

RestorePlan RestorePlan::build(const KeyboardSnapshot& keyboard, const KeyboardSnapshot& backup)
{
    RestorePlan plan;
    plan.targetProfile = backup.activeProfile;
    Builder b{keyboard, backup, plan};
    b.field(QStringLiteral("active profile"), keyboard.activeProfile, backup.activeProfile);
    b.keys();
    b.fnLayer();
    b.magnetism();
    b.options();
    b.settings();
    b.pictures(); // before the light: a picture write changes the effect
    b.lighting();
    return plan;
}

int RestorePlan::unwritableCount() const
{
    return int(std::count_if(changes.cbegin(), changes.cend(),
                             [](const BackupChange& c) { return !c.writable; }));
}

int RestorePlan::writeCount() const
{
    int n = int(settingsWrites.size());
    for (const QList<Write>& writes : keyWrites)
        n += int(writes.size());
    return n;
}
