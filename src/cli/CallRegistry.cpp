#include "CallRegistry.h"

#include "DialogDeviceConnect.h"

#include <QRegularExpression>
#include <limits>

namespace {

using A = ArgKind;
using D = DialogDeviceConnect;

quint8 u8(const CallArg& a)
{
    return static_cast<quint8>(a.number);
}

bool flag(const CallArg& a)
{
    return a.number != 0;
}

const quint8* entry(const CallArg& a)
{
    return reinterpret_cast<const quint8*>(a.bytes.constData());
}

QString hexText(const CallArg& a)
{
    return QString::fromLatin1(a.bytes.toHex());
}

// One line per operation; the arguments follow the operation's own parameter order.
constexpr CallOperation kOperations[] = {
    {"DoSetProfile", {A::U8}, [](D& d, const CallArgs& a) { d.DoSetProfile(u8(a[0])); }},
    {"DoReadAll", {}, [](D& d, const CallArgs&) { d.DoReadAll(); }},
    {"DoFactoryReset", {}, [](D& d, const CallArgs&) { d.DoFactoryReset(); }},
    {"DoSendCommand",
     {A::U8, A::Int, A::Bool},
     [](D& d, const CallArgs& a) { d.DoSendCommand(u8(a[0]), int(a[1].number), flag(a[2])); }},
    {"DoSendHex",
     {A::Bytes, A::Bool},
     [](D& d, const CallArgs& a) { d.DoSendHex(hexText(a[0]), flag(a[1])); }},
    // Settings and lighting
    {"DoSetReportRate", {A::U8}, [](D& d, const CallArgs& a) { d.DoSetReportRate(u8(a[0])); }},
    {"DoSetDebounce", {A::U8}, [](D& d, const CallArgs& a) { d.DoSetDebounce(u8(a[0])); }},
    {"DoSetLedOnOff", {A::Bool}, [](D& d, const CallArgs& a) { d.DoSetLedOnOff(flag(a[0])); }},
    {"DoSetLedEffect",
     {A::Int, A::U8},
     [](D& d, const CallArgs& a) { d.DoSetLedEffect(int(a[0].number), u8(a[1])); }},
    {"DoSetLedSpeed", {A::U8}, [](D& d, const CallArgs& a) { d.DoSetLedSpeed(u8(a[0])); }},
    {"DoSetLedBrightness",
     {A::Int},
     [](D& d, const CallArgs& a) { d.DoSetLedBrightness(int(a[0].number)); }},
    {"DoSetLedColor",
     {A::Colour, A::Int},
     [](D& d, const CallArgs& a) { d.DoSetLedColor(quint32(a[0].number), int(a[1].number)); }},
    {"DoSetSideLed", {A::Bytes}, [](D& d, const CallArgs& a) { d.DoSetSideLed(a[0].bytes); }},
    {"DoSetKbOption",
     {A::Int, A::U8},
     [](D& d, const CallArgs& a) { d.DoSetKbOption(int(a[0].number), u8(a[1])); }},
    {"DoSetSleepTime",
     {A::Int, A::Int},
     [](D& d, const CallArgs& a) { d.DoSetSleepTime(int(a[0].number), int(a[1].number)); }},
    // Key matrix and Fn layer
    {"DoSetKey",
     {A::U8, A::KeyEntry, A::U8, A::U8},
     [](D& d, const CallArgs& a) { d.DoSetKey(u8(a[0]), entry(a[1]), u8(a[2]), u8(a[3])); }},
    {"DoSetFn",
     {A::U8, A::KeyEntry},
     [](D& d, const CallArgs& a) { d.DoSetFn(u8(a[0]), entry(a[1])); }},
    {"DoSetKeyCode",
     {A::U8, A::Bool, A::U8},
     [](D& d, const CallArgs& a) { d.DoSetKeyCode(u8(a[0]), flag(a[1]), u8(a[2])); }},
    {"DoSetFnCode",
     {A::U8, A::Bool},
     [](D& d, const CallArgs& a) { d.DoSetFnCode(u8(a[0]), flag(a[1])); }},
    {"DoResetKey", {A::U8}, [](D& d, const CallArgs& a) { d.DoResetKey(u8(a[0])); }},
    // Magnetism, key test and calibration
    {"DoSetMagnetism",
     {A::U8, A::U8, A::U32, A::U8},
     [](D& d, const CallArgs& a) {
         d.DoSetMagnetism(u8(a[0]), u8(a[1]), quint32(a[2].number), u8(a[3]));
     }},
    {"DoSetKeyFlag",
     {A::U8, A::Bool},
     [](D& d, const CallArgs& a) { d.DoSetKeyFlag(u8(a[0]), flag(a[1])); }},
    {"DoStartKeyTest", {}, [](D& d, const CallArgs&) { d.DoStartKeyTest(); }},
    {"DoStopKeyTest", {}, [](D& d, const CallArgs&) { d.DoStopKeyTest(); }},
    {"DoStartCalibration", {}, [](D& d, const CallArgs&) { d.DoStartCalibration(); }},
    {"DoStopCalibration", {}, [](D& d, const CallArgs&) { d.DoStopCalibration(); }},
    // Macros and user pictures
    {"DoSetMacro",
     {A::U8, A::U16, A::U8, A::U8, A::Bytes},
     [](D& d, const CallArgs& a) {
         d.DoSetMacro(u8(a[0]), quint16(a[1].number), u8(a[2]), u8(a[3]), a[4].bytes);
     }},
    {"DoWriteUserPic",
     {A::U8, A::Bytes},
     [](D& d, const CallArgs& a) { d.DoWriteUserPic(u8(a[0]), a[1].bytes); }},
    {"DoReadUserPic", {A::U8}, [](D& d, const CallArgs& a) { d.DoReadUserPic(u8(a[0])); }},
};

// Whole bytes of hex digits; none at all is an empty byte string (an empty macro is one).
bool parseHex(const QString& text, QByteArray* bytes)
{
    static const QRegularExpression hex(QStringLiteral("^(?:[0-9A-Fa-f]{2})*$"));
    if (!hex.match(text).hasMatch()) return false;
    *bytes = QByteArray::fromHex(text.toLatin1());
    return true;
}

} // namespace

int CallOperation::argCount() const
{
    int n = 0;
    while (n < kMaxCallArgs && args[n] != ArgKind::None)
        ++n;
    return n;
}

namespace CallRegistry {

std::span<const CallOperation> operations()
{
    return kOperations;
}

const CallOperation* find(const QString& name)
{
    for (const CallOperation& op : kOperations)
        if (name == QLatin1String(op.name)) return &op;
    return nullptr;
}

bool parseNumber(const QString& text, quint64 max, quint64* value)
{
    bool ok = false;
    const quint64 v = text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)
                          ? text.mid(2).toULongLong(&ok, 16)
                          : text.toULongLong(&ok, 10);
    if (!ok || v > max || text.startsWith(QLatin1Char('+'))) return false;
    *value = v;
    return true;
}

bool parseArg(ArgKind kind, const QString& text, CallArg* arg, QString* error)
{
    auto fail = [&] {
        *error = QStringLiteral("\"%1\" is not a %2").arg(text, kindName(kind));
        return false;
    };
    switch (kind) {
    case ArgKind::U8:
        return parseNumber(text, 0xFF, &arg->number) || fail();
    case ArgKind::U16:
        return parseNumber(text, 0xFFFF, &arg->number) || fail();
    case ArgKind::U32:
        return parseNumber(text, 0xFFFFFFFF, &arg->number) || fail();
    case ArgKind::Int:
        return parseNumber(text, std::numeric_limits<int>::max(), &arg->number) || fail();
    case ArgKind::Bool:
        if (text == QLatin1String("true") || text == QLatin1String("false")) {
            arg->number = text == QLatin1String("true");
            return true;
        }
        return (parseNumber(text, 1, &arg->number)) || fail();
    case ArgKind::KeyEntry:
        return (parseHex(text, &arg->bytes) && arg->bytes.size() == 4) || fail();
    case ArgKind::Bytes:
        return parseHex(text, &arg->bytes) || fail();
    case ArgKind::Colour:
        if (text.size() != 7 || !text.startsWith(QLatin1Char('#')) ||
            !parseHex(text.mid(1), &arg->bytes))
            return fail();
        arg->number = text.mid(1).toUInt(nullptr, 16);
        return true;
    case ArgKind::None:
        break;
    }
    return fail();
}

QString kindName(ArgKind kind)
{
    switch (kind) {
    case ArgKind::U8:
        return QStringLiteral("u8");
    case ArgKind::U16:
        return QStringLiteral("u16");
    case ArgKind::U32:
        return QStringLiteral("u32");
    case ArgKind::Int:
        return QStringLiteral("int");
    case ArgKind::Bool:
        return QStringLiteral("bool");
    case ArgKind::KeyEntry:
        return QStringLiteral("key-entry(8 hex digits)");
    case ArgKind::Bytes:
        return QStringLiteral("hex-bytes");
    case ArgKind::Colour:
        return QStringLiteral("#RRGGBB");
    case ArgKind::None:
        break;
    }
    return QString();
}

QString signature(const CallOperation& operation)
{
    QString text = QLatin1String(operation.name);
    for (int i = 0; i < operation.argCount(); ++i)
        text += QLatin1Char(' ') + kindName(operation.args[i]);
    return text;
}

bool plan(const QStringList& words, QList<PlannedCall>* calls, QString* error)
{
    QList<QStringList> groups(1);
    for (const QString& word : words) {
        if (word == QLatin1String("--"))
            groups.append(QStringList());
        else
            groups.last().append(word);
    }
    for (const QStringList& group : groups) {
        if (group.isEmpty()) {
            *error = QStringLiteral("call: an operation name is missing");
            return false;
        }
        const CallOperation* op = find(group.first());
        if (!op) {
            *error = QStringLiteral("call: unknown operation \"%1\"").arg(group.first());
            return false;
        }
        if (group.size() - 1 != op->argCount()) {
            *error = QStringLiteral("call: usage: %1").arg(signature(*op));
            return false;
        }
        PlannedCall call{op, {}};
        for (int i = 0; i < op->argCount(); ++i) {
            CallArg arg;
            QString argError;
            if (!parseArg(op->args[i], group.at(i + 1), &arg, &argError)) {
                *error = QStringLiteral("call: %1: %2").arg(QLatin1String(op->name), argError);
                return false;
            }
            call.args.append(arg);
        }
        calls->append(call);
    }
    return true;
}

} // namespace CallRegistry
