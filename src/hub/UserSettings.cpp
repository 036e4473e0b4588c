#include "UserSettings.h"

std::unique_ptr<QSettings> UserSettings::open(bool tarnwickBuild)
{
    const QString brand = tarnwickBuild ? QStringLiteral("Tarnwick") : QStringLiteral("Orbe");
#ifdef Q_OS_WIN
    return std::make_unique<QSettings>(QStringLiteral("HKEY_CURRENT_USER\\Software\\") + brand,
                                       QSettings::NativeFormat);
#else
    return std::make_unique<QSettings>(QSettings::NativeFormat, QSettings::UserScope, brand);
#endif
}
