#pragma once

#include <QString>

// Where the hub keeps the files a user makes (macros, light works): a folder beside the
// program, as it always has, when that folder can be written; otherwise the same folder under
// the user's data folder (QStandardPaths::AppDataLocation), so that an installed hub works for
// an ordinary user. Nothing is moved between the two; the choice is logged.
namespace DataFolder {

// The folder `name` under besideBase (empty: the program's folder) or, failing that, under the
// user's data folder; made if missing. Ends without a separator. Empty only if neither can be
// made (logged).
QString locate(const QString& name, const QString& besideBase = QString());

// True if files can be created in the folder, making it first when it is missing.
bool usable(const QString& folder);

} // namespace DataFolder
