#pragma once

#include <QList>
#include <QString>

// Processes by executable name from /proc, the Linux counterpart of the Toolhelp snapshot.
class ProcessTable
{
public:
    // Ids of the processes whose executable is called name (case-insensitive), lowest first;
    // this process is never among them.
    static QList<qint64> idsNamed(const QString& name);
    // Ends the first of them at once, as TerminateProcess does. False if none could be ended.
    static bool endFirstNamed(const QString& name);
};
