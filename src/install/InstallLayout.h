#pragma once

#include <QString>

// The two shapes the programs run in. In a build tree (or a folder copied whole, as on
// Windows) the catalogues, settings and pictures lie beside the program, under config/ and
// images/. Installed, the program sits in <prefix>/bin and its shipped files in
// <prefix>/share/orbehub, which nobody writes: what the user changes goes to the per-user
// folders instead.
class InstallLayout
{
public:
    // The layout of the program in programDir (empty: this process's folder).
    explicit InstallLayout(const QString& programDir = QString());

    // Whether the shipped files come from the install prefix's data folder.
    bool isInstalled() const { return installed; }
    // The folder that holds config/ and images/ as shipped: read-only for the program.
    QString dataDir() const { return data; }
    // The folder the program writes its own settings (device.ini) to: config/ beside the
    // program when it keeps its files there and may write them, otherwise the user's config
    // folder.
    QString settingsDir() const;
    // A settings file by name inside settingsDir().
    QString settingsFile(const QString& name) const;

    // The folder for the files a user makes, by name ("macro", "work"): beside the program in
    // a build tree as long as files can be made there, otherwise under the user's data folder.
    // Made if missing; the choice is logged and nothing is moved. Empty if neither folder can
    // be made (logged).
    QString userFilesDir(const QString& name) const;

    // The per-user folder for settings, whatever the layout.
    static QString userSettingsDir();
    // The per-user folder for the files a user makes, whatever the layout.
    static QString userDataDir();

private:
    QString program;
    QString data;
    bool installed = false;
};
