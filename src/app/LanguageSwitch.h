#pragma once

#include <QString>

class Platform;
class QTranslator;

// What a choice in the language menu does (MainWindow::applyLanguage): saves the choice, loads
// the program's and Qt's translations for it, and tells the sibling drivers through the
// per-user values of the platform layer. The installed translators make Qt send LanguageChange
// to every window, which retranslates itself.
class LanguageSwitch
{
public:
    // platform must outlive the switch.
    explicit LanguageSwitch(Platform& platform) : platform(platform) {}

    // The translators to load, owned by the caller; any of them may be null.
    void setTranslators(QTranslator* appTranslator, QTranslator* qtBaseTranslator,
                        QTranslator* qtTranslator);

    // The family of the device a sibling driver shows now, -1 for none. The BY driver (family
    // 2) reads its locale only from its own value, so it is written at once while it is shown.
    void setHostedFamily(int family) { hostedFamily = family; }

    // Carries out the choice of language index (see kLanguages) with its menu text. Choosing
    // the current language again reloads and writes everything again. An index outside the
    // table changes nothing.
    bool apply(int index, const QString& text);

    // A blank and the menu text of the last choice: the text of the window's language button.
    QString languageText() const { return text; }
    // The last locale with a dash, "en-US": what the BY and JM drivers are given.
    QString localeTag() const { return tag; }

private:
    Platform& platform;
    QTranslator* app = nullptr;
    QTranslator* qtBase = nullptr;
    QTranslator* qt = nullptr;
    int hostedFamily = -1;
    QString text;
    QString tag;
};
