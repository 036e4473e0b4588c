#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <array>
#include <span>

class DialogDeviceConnect;

// What one argument of an operation is written as on the command line.
enum class ArgKind : quint8 {
    None, // ends an argument list
    U8,
    U16,
    U32,
    Int,
    Bool,     // 0 or 1, true or false
    KeyEntry, // four bytes as eight hex digits: "02000400"
    Bytes,    // a byte string as hex digits without blanks: "8F00"
    Colour,   // #RRGGBB
};

struct CallArg
{
    quint64 number = 0; // numbers and flags; a colour as 0xRRGGBB
    QByteArray bytes;   // key entries, byte strings; a colour as R, G, B
};
using CallArgs = QList<CallArg>;

constexpr int kMaxCallArgs = 6;

// One Do operation of the connection that `call` can run: its name, its arguments in the order
// of the operation's parameters, and how to invoke it.
struct CallOperation
{
    const char* name;
    std::array<ArgKind, kMaxCallArgs> args;
    void (*invoke)(DialogDeviceConnect& device, const CallArgs& args);

    int argCount() const;
};

// A call as read from the command line, checked and ready to run.
struct PlannedCall
{
    const CallOperation* operation = nullptr;
    CallArgs args;
};

namespace CallRegistry {

std::span<const CallOperation> operations();
const CallOperation* find(const QString& name);

// "decimal or 0x hex", no larger than max.
bool parseNumber(const QString& text, quint64 max, quint64* value);
bool parseArg(ArgKind kind, const QString& text, CallArg* arg, QString* error);
QString kindName(ArgKind kind);
// "DoSendCommand u8 int bool"
QString signature(const CallOperation& operation);

// Reads "OPERATION ARGS... [-- OPERATION ARGS...]..." into calls; false with a one-line error.
bool plan(const QStringList& words, QList<PlannedCall>* calls, QString* error);

} // namespace CallRegistry
