#pragma once

#include <QString>
#include <QStringList>

// Reads one Qt Linguist translation file and lists what keeps it from being finished: entries
// still marked unfinished or left empty, and translations that dropped a placeholder of their
// source (%1 to %99, %n), which would show the raw number's place empty on screen. Entries
// lupdate marks vanished or obsolete are no longer shown, so they are not held against a file.
class TsAudit
{
public:
    // One line per problem: "<file>: <context>: <source>: <what>". A file that cannot be read
    // or parsed is one problem.
    static QStringList problems(const QString& tsPath);
    // The placeholders of a text, each once, sorted ("%1", "%2", "%n").
    static QStringList placeholders(const QString& text);
};
