#include "LanguageSwitch.h"

#include "AppLog.h"
#include "Languages.h"
#include "Platform.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace {

constexpr int kByFamily = 2;

// Loads a translation into an installed translator. Loading alone would already post a
// LanguageChange for an installed one, but the one main() couldn't load was never installed:
// taking it out and putting it back covers both and never installs it twice.
void reload(QTranslator* translator, const QString& file, const QString& dir = QString())
{
    if (!translator) return;
    QCoreApplication::removeTranslator(translator);
    if (!translator->load(file, dir)) qCDebug(lcApp) << "no translation" << file << "in" << dir;
    QCoreApplication::installTranslator(translator);
}

} // namespace

void LanguageSwitch::setTranslators(QTranslator* appTranslator, QTranslator* qtBaseTranslator,
                                    QTranslator* qtTranslator)
{
    app = appTranslator;
    qtBase = qtBaseTranslator;
    qt = qtTranslator;
}

bool LanguageSwitch::apply(int index, const QString& menuText)
{
    if (index < 0 || index >= int(kLanguages.size())) {
        qCWarning(lcApp) << "no language of index" << index;
        return false;
    }
    const Language& language = kLanguages[index];
    const QString locale = QLatin1String(language.locale);

    text = QLatin1Char(' ') + menuText;
    platform.setUserValue(QStringLiteral("lastlang"), index);

    reload(app, QStringLiteral(":/i18n/ORBEStudio_") + locale + QStringLiteral(".qm"));
    const QString qtDir = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    reload(qtBase, QStringLiteral("qtbase_") + locale, qtDir);
    reload(qt, QStringLiteral("qt_") + locale, qtDir);

    tag = QString(locale).replace(u'_', u'-');
    if (hostedFamily == kByFamily) platform.setUserValue(QStringLiteral("ByLocale"), tag);

    platform.setUserValue(QStringLiteral("LanguageCode"), QLatin1String(language.languageCode));
    platform.setUserValue(QStringLiteral("LANGUAGE"), language.languageId);
    qCDebug(lcApp).noquote() << "language" << index << locale;
    return true;
}
