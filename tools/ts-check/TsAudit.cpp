#include "TsAudit.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

struct Message
{
    QString context;
    QString source;
    QString type;      // the translation's type attribute: "", "unfinished", "vanished", "obsolete"
    QStringList forms; // the translation, or each numerus form
    bool numerus = false;
    bool sawTranslation = false;
};

QString describe(const QString& file, const Message& m, const QString& what)
{
    return QStringLiteral("%1: %2: %3: %4").arg(file, m.context, m.source, what);
}

void check(const QString& file, const Message& m, QStringList& out)
{
    if (m.type == QLatin1String("vanished") || m.type == QLatin1String("obsolete")) return;
    if (!m.sawTranslation) {
        out << describe(file, m, QStringLiteral("no translation"));
        return;
    }
    if (m.type == QLatin1String("unfinished")) {
        out << describe(file, m, QStringLiteral("unfinished"));
        return;
    }
    const QStringList wanted = TsAudit::placeholders(m.source);
    for (const QString& form : m.forms) {
        if (form.trimmed().isEmpty()) {
            out << describe(file, m, QStringLiteral("empty translation"));
            return;
        }
        const QStringList got = TsAudit::placeholders(form);
        for (const QString& p : wanted) {
            // %n may be spelled out in a language whose single form names no number.
            if (!got.contains(p) && !(p == QLatin1String("%n") && m.forms.size() > 1)) {
                out << describe(file, m, QStringLiteral("translation lacks %1").arg(p));
                return;
            }
        }
    }
}

} // namespace

QStringList TsAudit::placeholders(const QString& text)
{
    // %L1 is %1 in the locale's digits: the same place to fill.
    static const QRegularExpression re(QStringLiteral("%L?([1-9][0-9]?|n)"));
    QStringList found;
    for (auto it = re.globalMatch(text); it.hasNext();) {
        const QString p = QLatin1Char('%') + it.next().captured(1);
        if (!found.contains(p)) found << p;
    }
    found.sort();
    return found;
}

QStringList TsAudit::problems(const QString& tsPath)
{
    const QString name = QFileInfo(tsPath).fileName();
    QFile f(tsPath);
    if (!f.open(QIODevice::ReadOnly)) return {name + QStringLiteral(": cannot be read")};

    QStringList out;
    QXmlStreamReader xml(&f);
    QString context;
    Message m;
    bool inMessage = false;
    int messages = 0;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            const auto tag = xml.name();
            if (tag == QLatin1String("name") && !inMessage) {
                context = xml.readElementText();
            } else if (tag == QLatin1String("message")) {
                m = Message{};
                m.context = context;
                m.numerus =
                    xml.attributes().value(QLatin1String("numerus")) == QLatin1String("yes");
                inMessage = true;
            } else if (inMessage && tag == QLatin1String("source")) {
                m.source = xml.readElementText();
            } else if (inMessage && tag == QLatin1String("translation")) {
                m.sawTranslation = true;
                m.type = xml.attributes().value(QLatin1String("type")).toString();
                if (!m.numerus) m.forms << xml.readElementText();
            } else if (inMessage && tag == QLatin1String("numerusform")) {
                m.forms << xml.readElementText();
            }
        } else if (xml.isEndElement()) {
            if (xml.name() == QLatin1String("translation") && m.forms.isEmpty())
                m.forms << QString(); // a numerus translation with no forms at all
            if (xml.name() == QLatin1String("message")) {
                check(name, m, out);
                inMessage = false;
                ++messages;
            }
        }
    }
    if (xml.hasError())
        return {name + QStringLiteral(": not a translation file (%1 at line %2)")
                           .arg(xml.errorString())
                           .arg(xml.lineNumber())};
    if (messages == 0) out << name + QStringLiteral(": holds no texts");
    return out;
}
