#pragma once

#include <QByteArray>
#include <QString>

// Tells the user once what is wrong with a file beside the program (the catalogues, the custom
// list, enumsetting.ini), not at every scan that reads it again: a problem is told anew only
// after the file's content has changed, or after the file read well in between. Any thread.
class ConfigWarnings
{
public:
    // A warning in the hub's category, "<path>: <problem>", unless this problem was told for
    // this content of the file already. content is what was read (empty for a missing file).
    static void warn(const QString& path, const QByteArray& content, const QString& problem);
    // The file read well: its earlier problems may be told again when they come back.
    static void clear(const QString& path);
};
