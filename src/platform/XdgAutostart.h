#pragma once

#include <QString>

// Start at log-in the freedesktop way: a desktop entry "orbehub.desktop" in the user's
// autostart folder. Its Exec line is quoted and escaped as the Desktop Entry rules ask, so a
// program path with blanks, quotes or dollars survives the round trip.
class XdgAutostart
{
public:
    static QString filePath();
    // The program of the entry, empty when there is none or it is hidden.
    static QString program();
    static bool write(const QString& programPath);
    static bool remove();

    // The Exec value that runs exactly this program, and back.
    static QString execValue(const QString& programPath);
    static QString programFromExec(const QString& execValue);
};
