#include "AppStartup.h"

#include "AppLog.h"
#include "Clock.h"
#include "HidapiBackend.h"
#include "TracedHidBackend.h"
#include "VirtualHidBackend.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace AppStartup {

namespace {
const QString kTranslationPrefix = QStringLiteral("ORBEStudio_");
const QString kTranslationDir = QStringLiteral(":/i18n/");
constexpr const char* kSimulateFlag = "--simulate";
const QString kTraceOption = QStringLiteral("--trace");

// Keeps argv[0] and every argument that take() doesn't claim, in order; take() sees the index
// and may claim the next arguments as well by advancing it.
template <class Take> void filterArguments(int& argc, char** argv, Take take)
{
    int kept = 0;
    for (int i = 0; i < argc; ++i) {
        if (i > 0 && take(i)) continue;
        argv[kept++] = argv[i];
    }
    for (int i = kept; i < argc; ++i)
        argv[i] = nullptr;
    argc = kept;
}
} // namespace

QString translationBaseName(const QString& uiLanguage)
{
    return kTranslationPrefix + QLocale(uiLanguage).name();
}

QString installAppTranslation(QTranslator& translator, const QStringList& uiLanguages)
{
    qCDebug(lcApp) << uiLanguages;
    for (const QString& language : uiLanguages) {
        const QString baseName = translationBaseName(language);
        qCDebug(lcApp).noquote() << baseName;
        if (translator.load(kTranslationDir + baseName)) {
            QCoreApplication::installTranslator(&translator);
            return baseName;
        }
    }
    return QString();
}

void installQtTranslations(QTranslator& qtBase, QTranslator& qt, const QString& localeName)
{
    const QString dir = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (!qtBase.load(QStringLiteral("qtbase_") + localeName, dir))
        qCDebug(lcApp) << "no Qt-base translation for" << localeName;
    if (!qt.load(QStringLiteral("qt_") + localeName, dir))
        qCDebug(lcApp) << "no Qt translation for" << localeName;
    QCoreApplication::installTranslator(&qtBase);
    QCoreApplication::installTranslator(&qt);
}

QString siblingRoot(const QString& applicationDir)
{
    QString root = applicationDir;
    if (!QDir(root + QStringLiteral("/RyExe")).exists()) root += QStringLiteral("/..");
    return root;
}

QStringList fontPaths(const QString& root)
{
    QStringList paths;
    for (const char* file : kFontFiles)
        paths.append(root + QStringLiteral("/WsExe/font/") + QLatin1String(file));
    return paths;
}

void loadFonts(const QString& root)
{
    for (const QString& path : fontPaths(root))
        QFontDatabase::addApplicationFont(path);
}

QString applicationStyleSheet()
{
    return QStringLiteral(
        "* { font-family: MiSans,MiSans;}"
        "QLabel { font-size: 14px; font-weight: 400 ;}"
        "QLabel:disabled { color: #B3B3B3; }"
        "QLineEdit { border: 1px solid #D0D0D0; background-color: #EDEDED; border-radius: 6px;"
        " min-height: 20px; padding: 0px 6px; color: black; font-size: 14px; }"
        "QLineEdit:focus { border: 1px solid #6329B6; }");
}

std::unique_ptr<HidBackend> createHidBackend(bool simulate)
{
    if (simulate) return VirtualHidBackend::createDefaultSet(QtClock::shared(), SimulatorOptions{});
    auto backend = std::make_unique<HidapiBackend>();
    if (!backend->startWatching())
        qCWarning(lcApp) << "no hot-plug notices: new devices show at the next periodic scan";
    return backend;
}

bool takeSimulateFlag(int& argc, char** argv)
{
    return takeFlag(argc, argv, kSimulateFlag);
}

bool takeFlag(int& argc, char** argv, const char* flag)
{
    bool found = false;
    filterArguments(argc, argv, [&](int& i) {
        if (QLatin1String(flag) != QLatin1String(argv[i])) return false;
        found = true;
        return true;
    });
    return found;
}

QString takeTraceOption(int& argc, char** argv)
{
    QString file;
    const int count = argc;
    filterArguments(argc, argv, [&](int& i) {
        const QString arg = QString::fromLocal8Bit(argv[i]);
        if (arg.startsWith(kTraceOption + u'=')) {
            file = arg.mid(kTraceOption.size() + 1);
            return true;
        }
        if (arg != kTraceOption) return false;
        if (i + 1 < count) {
            file = QString::fromLocal8Bit(argv[++i]);
        } else {
            qCWarning(lcApp) << "--trace needs a file; the run is not traced";
        }
        return true;
    });
    return file;
}

std::unique_ptr<HidBackend> traceTo(std::unique_ptr<HidBackend> hid, const QString& file,
                                    QString* error)
{
    auto out = std::make_unique<QFile>(file);
    if (file.isEmpty() ||
        !out->open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        const QString why =
            QStringLiteral("cannot write the trace file %1: %2").arg(file, out->errorString());
        qCWarning(lcApp).noquote() << why;
        if (error) *error = why;
        return hid;
    }
    return std::make_unique<TracedHidBackend>(std::move(hid), std::move(out));
}

} // namespace AppStartup
