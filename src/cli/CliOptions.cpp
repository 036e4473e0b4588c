#include "CliOptions.h"

namespace {

bool takeValue(const QStringList& args, int* i, QString* value, QString* error)
{
    if (*i + 1 >= args.size()) {
        *error = QStringLiteral("%1 needs a value").arg(args.at(*i));
        return false;
    }
    *value = args.at(++*i);
    return true;
}

bool takeNumber(const QStringList& args, int* i, quint64 max, quint64* number, QString* error)
{
    QString text;
    if (!takeValue(args, i, &text, error)) return false;
    if (!CallRegistry::parseNumber(text, max, number)) {
        *error = QStringLiteral("%1: \"%2\" is not a number up to %3 (decimal or 0x hex)")
                     .arg(args.at(*i - 1), text)
                     .arg(max);
        return false;
    }
    return true;
}

constexpr quint64 kLargestLatencyMs = 1000;

// "N" or "MIN-MAX", milliseconds.
bool takeRange(const QStringList& args, int* i, int* low, int* high, QString* error)
{
    QString text;
    if (!takeValue(args, i, &text, error)) return false;
    const QStringList parts = text.split(QLatin1Char('-'));
    quint64 a = 0;
    quint64 b = 0;
    if (parts.size() > 2 || !CallRegistry::parseNumber(parts.first(), kLargestLatencyMs, &a) ||
        !CallRegistry::parseNumber(parts.last(), kLargestLatencyMs, &b) || b < a) {
        *error = QStringLiteral("%1: \"%2\" is not N or MIN-MAX milliseconds up to %3")
                     .arg(args.at(*i - 1), text)
                     .arg(kLargestLatencyMs);
        return false;
    }
    *low = int(a);
    *high = int(b);
    return true;
}

} // namespace

bool CliOptions::parse(const QStringList& args, CliOptions* o, QString* error)
{
    int i = 0;
    for (; i < args.size(); ++i) {
        const QString& a = args.at(i);
        quint64 n = 0;
        if (!a.startsWith(QLatin1String("-"))) break;
        if (a == QLatin1String("--simulate")) {
            o->simulate = true;
        } else if (a == QLatin1String("--wireless")) {
            o->wireless = true;
        } else if (a == QLatin1String("--sim-silent")) {
            o->simSilent = true;
        } else if (a == QLatin1String("--timing")) {
            o->timing = true;
        } else if (a == QLatin1String("--help") || a == QLatin1String("-h")) {
            o->help = true;
            return true;
        } else if (a == QLatin1String("--sim-version")) {
            if (!takeNumber(args, &i, 0xFFFF, &n, error)) return false;
            o->simFirmwareVersion = quint16(n);
        } else if (a == QLatin1String("--sim-latency")) {
            if (!takeRange(args, &i, &o->simLatencyMinMs, &o->simLatencyMaxMs, error)) return false;
        } else if (a == QLatin1String("--sim-missing") || a == QLatin1String("--sim-denied")) {
            if (!takeNumber(args, &i, 2, &n, error)) return false;
            (a == QLatin1String("--sim-missing") ? o->simMissingUsage : o->simDeniedUsage) = int(n);
        } else if (a == QLatin1String("--sim-id")) {
            if (!takeNumber(args, &i, 0xFFFFFFFF, &n, error)) return false;
            o->simDeviceId = quint32(n);
        } else if (a == QLatin1String("--vid")) {
            if (!takeNumber(args, &i, 0xFFFF, &n, error)) return false;
            o->vid = quint16(n);
        } else if (a == QLatin1String("--pid")) {
            if (!takeNumber(args, &i, 0xFFFF, &n, error)) return false;
            o->pid = quint16(n);
        } else if (a == QLatin1String("--trace")) {
            if (!takeValue(args, &i, &o->traceFile, error)) return false;
        } else {
            *error = QStringLiteral("unknown option %1").arg(a);
            return false;
        }
    }

    if (i >= args.size()) {
        *error = QStringLiteral("a command is missing: info, dump, call, list, backup or restore");
        return false;
    }
    const QString command = args.at(i);
    const QStringList rest = args.mid(i + 1);
    if (command == QLatin1String("info") || command == QLatin1String("dump")) {
        o->command = command == QLatin1String("info") ? Command::Info : Command::Dump;
        if (!rest.isEmpty()) {
            *error = QStringLiteral("%1 takes no arguments").arg(command);
            return false;
        }
        return true;
    }
    if (command == QLatin1String("call")) {
        o->command = Command::Call;
        return CallRegistry::plan(rest, &o->calls, error);
    }
    if (command == QLatin1String("list")) {
        o->command = Command::List;
        if (rest.isEmpty()) return true;
        *error = QStringLiteral("list takes no arguments");
        return false;
    }
    if (command == QLatin1String("backup") || command == QLatin1String("restore")) {
        const bool restore = command == QLatin1String("restore");
        o->command = restore ? Command::Restore : Command::Backup;
        for (const QString& word : rest) {
            if (restore && word == QLatin1String("--dry-run")) {
                o->dryRun = true;
            } else if (word.startsWith(QLatin1Char('-')) || !o->backupFile.isEmpty()) {
                *error = QStringLiteral("usage: %1 FILE%2")
                             .arg(command, restore ? QStringLiteral(" [--dry-run]") : QString());
                return false;
            } else {
                o->backupFile = word;
            }
        }
        if (!o->backupFile.isEmpty()) return true;
        *error = QStringLiteral("%1 needs a FILE").arg(command);
        return false;
    }
    *error = QStringLiteral("unknown command \"%1\": info, dump, call, list, backup or restore")
                 .arg(command);
    return false;
}

QString CliOptions::usage()
{
    QString text = QStringLiteral(
        "Usage: orbehub-cli [OPTIONS] COMMAND\n"
        "\n"
        "Commands:\n"
        "  info     connect, ask identity, options and profile (8F, 89, 84) and print\n"
        "           the device id, the firmware version and the version text\n"
        "  dump     connect, read the selected profile whole and print the cache as JSON\n"
        "  call OPERATION ARGS... [-- OPERATION ARGS...]...\n"
        "           connect, read the profile, run the operations in order (each one until\n"
        "           the connection is idle again), then print the cache as JSON\n"
        "  list     run one discovery pass as the hub does and print one line per device:\n"
        "           family, connection, id, online, name, vendor path, device path (tabs)\n"
        "  backup FILE\n"
        "           connect, read every profile (selecting each in turn, then the one the\n"
        "           keyboard was on), the user pictures and the light switch, and write them\n"
        "           to FILE as one JSON document, whole or not at all (see README, Backups)\n"
        "  restore FILE [--dry-run]\n"
        "           check FILE, connect, refuse a backup of another keyboard id, read every\n"
        "           profile and print what differs (what, keyboard, backup); then write only\n"
        "           that, read everything again and confirm it matches. --dry-run writes\n"
        "           nothing and returns to the profile the keyboard was on\n"
        "\n"
        "Options:\n"
        "  --simulate         use the built-in virtual keyboards instead of hidapi\n"
        "  --wireless         connect through the wireless interface (usage page FF55,\n"
        "                     usage 0202): the virtual wireless keyboard with --simulate\n"
        "  --sim-version N    firmware version of the virtual keyboards (default 0x300)\n"
        "  --sim-id N         device id of the virtual keyboards (default 0xAF7)\n"
        "  --sim-latency N|MIN-MAX\n"
        "                     milliseconds each read on the virtual wireless link takes\n"
        "                     (default 4-30; 0 for none)\n"
        "  --sim-silent       add a virtual keyboard that never answers its identity request\n"
        "  --sim-missing U, --sim-denied U\n"
        "                     the virtual wired keyboard's interface of usage U (1 input,\n"
        "                     2 command) is not listed, or refuses to open\n"
        "                     (list then stops after 30 s with status 5)\n"
        "  --vid N, --pid N   the keyboard's USB ids (default: lastVID/lastPID of device.ini,\n"
        "                     3151/502F when unset; device.ini is in ~/.config/orbehub when\n"
        "                     installed, in config/ beside the program in a build tree)\n"
        "  --trace FILE       write every HID transfer to FILE\n"
        "  --timing           print the read sequence's duration to stderr\n"
        "  -h, --help         this text\n"
        "\n"
        "Numbers are decimal or 0x hex; a key entry or byte string is hex digits without\n"
        "blanks; a colour is #RRGGBB.\n"
        "\n"
        "Operations of call:\n");
    for (const CallOperation& op : CallRegistry::operations())
        text += QStringLiteral("  ") + CallRegistry::signature(op) + QLatin1Char('\n');
    text += QStringLiteral(
        "\n"
        "Exit status: 0 done; 2 bad command line; 3 no keyboard found, or one without both of\n"
        "its interfaces; 4 an interface failed to open (permissions); 5 no answer or read not\n"
        "finished within 30 s; 6 backup file refused (damaged, newer format, another\n"
        "keyboard); 1 other (a restore that does not read back as the backup).\n");
    return text;
}
