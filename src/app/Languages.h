#pragma once

#include <QtGlobal>
#include <array>

// The interface languages, by index. The index is the language menu's button id, the saved
// "lastlang" and the language signal's langId. The sibling drivers read the code and the
// Windows language id.
struct Language
{
    const char* menuText;     // its own name in its own script (UTF-8), through the translations
    const char* locale;       // also the translation's suffix: ":/i18n/ORBEStudio_<locale>.qm"
    const char* languageCode; // "LanguageCode"
    int languageId;           // "LANGUAGE"
};

inline constexpr std::array<Language, 14> kLanguages{{
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "中文简体"),
     .locale = "zh_CN",
     .languageCode = "cn",
     .languageId = 2052},
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "English"),
     .locale = "en_US",
     .languageCode = "en",
     .languageId = 1033},
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "中文繁体"),
     .locale = "zh_TW",
     .languageCode = "tw",
     .languageId = 1028},
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "日本語"),
     .locale = "ja_JP",
     .languageCode = "jp",
     .languageId = 1041},
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "한국어"),
     .locale = "ko_KR",
     .languageCode = "kr",
     .languageId = 1042},
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "Русский"),
     .locale = "ru_RU",
     .languageCode = "ru",
     .languageId = 1049},
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "Tiếng Việt"),
     .locale = "vi_VN",
     .languageCode = "vi",
     .languageId = 1066},
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "Português"),
     .locale = "pt_PT",
     .languageCode = "pt",
     .languageId = 1046},
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "ภาษาไทย"),
     .locale = "th_TH",
     .languageCode = "th",
     .languageId = 1054},
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "Deutsch"),
     .locale = "de_DE",
     .languageCode = "de",
     .languageId = 1031},
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "Français"),
     .locale = "fr_FR",
     .languageCode = "fr",
     .languageId = 1036},
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "Svenska"),
     .locale = "sv_SE",
     .languageCode = "sv",
     .languageId = 1053},
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "Italiano"),
     .locale = "it_IT",
     .languageCode = "it",
     .languageId = 1040},
    {.menuText = QT_TRANSLATE_NOOP("ModuleLangMenu", "Türkçe"),
     .locale = "tr_TR",
     .languageCode = "tr",
     .languageId = 1055},
}};
