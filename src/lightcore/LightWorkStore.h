#pragma once

#include <QList>
#include <QString>

// One painting kept on the computer: its name, a picture of the keyboard as it looked, and the
// colour map (three bytes per key position).
struct LightWork
{
    QString image; // base64 of a PNG
    QString name;
    QString data; // the colour map as lower-case hexadecimal text

    friend bool operator==(const LightWork&, const LightWork&) = default;
};

// The works library, "ledwork.json" in the works folder: a JSON array, one object per work, in
// the order of the list. The file is written whole or not at all. A broken file reads as an
// empty library and stays untouched until works are saved over it; then it is first kept
// beside under a name of its own, so nothing the user had is lost.
class LightWorkStore
{
public:
    static constexpr char kFileName[] = "ledwork.json";
    static constexpr char kFolderName[] = "work";

    // The works folder: "work" in baseDir when one is given (tests, the screenshots), else
    // where the install layout keeps the user's files.
    static QString folderIn(const QString& baseDir);

    // folder: where the file lives; made if missing.
    explicit LightWorkStore(const QString& folder);

    QString filePath() const { return path; }
    // The works in the file; none for a missing or broken file (logged).
    QList<LightWork> load();
    // True when the last load found a file it couldn't read as a library.
    bool loadedBroken() const { return broken; }
    // Replaces the file with these works; false (logged) when it could not, the old file whole.
    bool save(const QList<LightWork>& works);
    // Where the last broken file was kept, empty if none was.
    QString keptBrokenFile() const { return keptBroken; }

    // The colour map as the file holds it, and back. Bad text gives a short map.
    static QString toHex(const QByteArray& map);
    static QByteArray fromHex(const QString& text);

private:
    bool keepBrokenFile();

    QString path;
    bool broken = false;
    QString keptBroken;
};
