#pragma once

#include "Macro.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>

// The user's macros, in memory and in the "macro" folder beside the program (installed, or where
// that folder can't be written, in the user's data folder): one header file with the list, one
// event file per macro id. The window makes one and passes it to the pages and the connection.
// GUI thread only.
class ModuleMacroManager : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMaxMacros = 50; // ids 0 .. 49
    static constexpr int kFirstStartMacros = 8;

    // The store lives in baseDir/macro/; an empty baseDir means the folder the install layout
    // gives the user's files (InstallLayout::userFilesDir).
    // Creates the folder if needed and loads the header.
    explicit ModuleMacroManager(const QString& baseDir = QString(), QObject* parent = nullptr);
    ~ModuleMacroManager() override;

    // In the order of the page's list and of the header file.
    const QList<Macro*>& macros() const { return m_macros; }
    QString folderPath() const { return m_folder; }
    QString headerPath() const;
    QString eventPath(quint8 id) const;

    // A new macro with the lowest free id; null when the store is full. Not saved.
    Macro* AddMacro();
    // Takes the macro out of the list, frees it and saves the header. Its event file stays.
    void RemoveMacro(Macro* macro);
    Macro* FindMacro(quint8 id) const;
    MacroEvent* AddEvent(Macro* macro, quint8 type, quint16 value, bool down, const QString& text);

    // Saves are whole or nothing; false (and a warning) when the file could not be replaced.
    bool SaveHeader();
    // Replaces the list with the header's macros and their events; an empty result falls back
    // to the first-start macros, which are saved.
    void LoadHeader();
    bool SaveEvents(Macro* macro);
    // Replaces the macro's events with its file's; none when the file is missing or broken.
    void LoadEvents(Macro* macro);

    // The byte stream the keyboard plays: one record per action/delay pair. Empty for a null
    // macro or one without events.
    static QByteArray PackMacro(const Macro* macro);

signals:
    // After SaveHeader, whether the file could be written or not: the list or a name changed,
    // so that a picker refreshes its names.
    void listSaved();
    // After SaveEvents of the macro with this id, likewise.
    void macroSaved(quint8 id);

private:
    QString m_folder; // ends with a separator
    QList<Macro*> m_macros;
};
