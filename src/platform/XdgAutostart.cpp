#include "XdgAutostart.h"

#include "PlatformLog.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

// Characters that a quoted Exec argument escapes with a backslash.
bool escapedInQuotes(QChar c)
{
    return c == u'"' || c == u'`' || c == u'$' || c == u'\\';
}

// The string-level escapes every desktop entry value has.
QString escapeString(const QString& text)
{
    QString out;
    for (QChar c : text) {
        switch (c.unicode()) {
        case '\\':
            out += QLatin1String("\\\\");
            break;
        case '\n':
            out += QLatin1String("\\n");
            break;
        case '\t':
            out += QLatin1String("\\t");
            break;
        case '\r':
            out += QLatin1String("\\r");
            break;
        default:
            out += c;
        }
    }
    return out;
}

QString unescapeString(const QString& text)
{
    QString out;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c != u'\\' || i + 1 == text.size()) {
            out += c;
            continue;
        }
        const QChar next = text.at(++i);
        switch (next.unicode()) {
        case 's':
            out += u' ';
            break;
        case 'n':
            out += u'\n';
            break;
        case 't':
            out += u'\t';
            break;
        case 'r':
            out += u'\r';
            break;
        default:
            out += next;
        }
    }
    return out;
}

} // namespace

QString XdgAutostart::filePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::ConfigLocation) +
           QStringLiteral("/autostart/orbehub.desktop");
}

QString XdgAutostart::execValue(const QString& programPath)
{
    QString quoted = QStringLiteral("\"");
    for (QChar c : programPath) {
        if (escapedInQuotes(c)) quoted += u'\\';
        quoted += c;
        if (c == u'%') // a literal percent is doubled, or it reads as a field code
            quoted += u'%';
    }
    quoted += u'"';
    return escapeString(quoted);
}

QString XdgAutostart::programFromExec(const QString& execValue)
{
    const QString line = unescapeString(execValue).trimmed();
    QString program;
    if (line.startsWith(u'"')) {
        for (qsizetype i = 1; i < line.size(); ++i) {
            const QChar c = line.at(i);
            if (c == u'"') break;
            if (c == u'\\' && i + 1 < line.size() && escapedInQuotes(line.at(i + 1)))
                program += line.at(++i);
            else
                program += c;
        }
    } else {
        program = line.section(u' ', 0, 0);
    }
    return program.replace(QLatin1String("%%"), QLatin1String("%"));
}

QString XdgAutostart::program()
{
    QFile file(filePath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    bool inEntry = false;
    bool hidden = false;
    QString exec;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.startsWith(u'[')) {
            inEntry = line == QLatin1String("[Desktop Entry]");
            continue;
        }
        if (!inEntry) continue;
        const qsizetype eq = line.indexOf(u'=');
        if (eq <= 0) continue;
        const QString key = line.left(eq).trimmed();
        const QString value = line.mid(eq + 1).trimmed();
        if (key == QLatin1String("Exec"))
            exec = value;
        else if (key == QLatin1String("Hidden"))
            hidden = value == QLatin1String("true");
    }
    return hidden ? QString() : programFromExec(exec);
}

bool XdgAutostart::write(const QString& programPath)
{
    const QString path = filePath();
    if (!QDir().mkpath(QFileInfo(path).absolutePath())) {
        qCWarning(lcPlatform) << "cannot create the autostart folder for" << path;
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        qCWarning(lcPlatform) << "cannot write" << path << file.errorString();
        return false;
    }
    const QString entry = QStringLiteral("[Desktop Entry]\n"
                                         "Type=Application\n"
                                         "Name=OrbeHub\n"
                                         "Exec=%1\n"
                                         "Terminal=false\n"
                                         "X-GNOME-Autostart-enabled=true\n")
                              .arg(execValue(programPath));
    const QByteArray bytes = entry.toUtf8();
    // Flushed by hand: Qt 6.4's commit() misses a failed final flush and would install a cut file.
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        qCWarning(lcPlatform) << "cannot write" << path << file.errorString();
        file.cancelWriting();
        return false;
    }
    if (!file.commit()) {
        qCWarning(lcPlatform) << "cannot write" << path << file.errorString();
        return false;
    }
    return true;
}

bool XdgAutostart::remove()
{
    QFile file(filePath());
    if (!file.exists()) return true;
    if (!file.remove()) {
        qCWarning(lcPlatform) << "cannot remove" << file.fileName() << file.errorString();
        return false;
    }
    return true;
}
