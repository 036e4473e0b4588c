#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <memory>

class HidBackend;
class QTranslator;

// The steps of the program's start-up that depend on nothing but their inputs, so that they
// can be checked without starting the whole program.
namespace AppStartup {

// The base name of the translation for one user interface language ("de-DE" ->
// "ORBEStudio_de_DE").
QString translationBaseName(const QString& uiLanguage);

// Loads the first translation of the list that the program ships into translator, and installs
// it. Returns the base name that was loaded, or an empty string when none was, in which case the
// translator stays uninstalled.
QString installAppTranslation(QTranslator& translator, const QStringList& uiLanguages);

// Loads qtbase_<locale> and qt_<locale> from Qt's translations. The results don't matter: both
// are installed in any case, the Qt-base one first.
void installQtTranslations(QTranslator& qtBase, QTranslator& qt, const QString& localeName);

// The folder that holds the sibling drivers' folders: the application directory when "RyExe"
// lies in it, otherwise its parent (the program may run from one level below them).
QString siblingRoot(const QString& applicationDir);

// The fonts the interface uses, in the order they are loaded. They belong to a sibling driver's
// folder; the hub has no font folder of its own.
inline constexpr std::array<const char*, 10> kFontFiles{
    "MiSans-Bold.ttf",     "MiSans-Demibold.ttf", "MiSans-ExtraLight.ttf", "MiSans-Heavy.ttf",
    "MiSans-Light.ttf",    "MiSans-Medium.ttf",   "MiSans-Normal.ttf",     "MiSans-Regular.ttf",
    "MiSans-Semibold.ttf", "MiSans-Thin.ttf",
};
QStringList fontPaths(const QString& root);
// Adds each font to the application; one that doesn't load is skipped without a word.
void loadFonts(const QString& root);

// The one application-wide style sheet.
QString applicationStyleSheet();

// The HID backend of the run: the virtual keyboards with --simulate, hidapi otherwise, which
// then watches the system's device notices. Call it with the application made.
std::unique_ptr<HidBackend> createHidBackend(bool simulate);

// Removes "--simulate" from argv (shifting the rest down) and tells whether it was there.
bool takeSimulateFlag(int& argc, char** argv);
// The same for any flag of ours.
bool takeFlag(int& argc, char** argv, const char* flag);

// Removes "--trace FILE" or "--trace=FILE" from argv and gives the file, empty when there is
// none. A --trace without its file is dropped with a warning.
QString takeTraceOption(int& argc, char** argv);
// The backend with every transfer written to file, as orbehub-cli --trace writes it. When the
// file can't be written the backend comes back as it was, and the reason is logged and
// returned in error.
std::unique_ptr<HidBackend> traceTo(std::unique_ptr<HidBackend> hid, const QString& file,
                                    QString* error = nullptr);

} // namespace AppStartup
