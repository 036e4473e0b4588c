// Broken files beside a copy of the command-line tool: each one is named on stderr in one line,
// the tool goes on with what it can trust, the broken file stays as it was and nothing else in
// the program's folder changes.

#include "TestSupport.h"

#include <QDirIterator>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

namespace {

// The records of `orbehub-cli --simulate list` with the shipped files, by family.
const QStringList kCloudLines{
    "0\t0\t0x0AF7\t1\tORBE HE75\tsim:3151:502F:2\tsim:3151:502F:2",
    "0\t2\t0x0AF7\t1\tORBE HE75\tnull\tsim:3151:5030:FF55",
    "0\t1\t0x0EC3\t1\tORBE HE98\tsim:25A7:FA70:2\tsim:25A7:FA70:2",
};
const QString kWsLine = "1\t1\t0x1101\t1\tWS Virtual 2.4G\tnull\tsim:38EE:0030:FF1C";
const QStringList kSiblingLines{
    kWsLine,
    "2\t0\t0x2201\t1\tBY Virtual 65\t202401150042\t202401150042",
    "3\t2\t0x3301\t1\tJM Virtual BT\tnull\tsim:3554:F5D5:FF02",
};

// One file broken in a copy of the program's folder.
struct Breakage
{
    const char* name;
    const char* file;        // under config/
    const char* replace;     // text of the shipped file to replace; empty: the whole file
    const char* with;        // nullptr: the file is removed
    const char* stderrLines; // patterns, one a line; %1 stands for the broken file's path
    QStringList listed;      // the lines of stdout
    QStringList args{"--simulate", "list"};
    int status = 0;
};

// Every file of the folder with its content.
QMap<QString, QByteArray> snapshot(const QString& root)
{
    QMap<QString, QByteArray> files;
    QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(QDir(root).relativeFilePath(path), readFile(path));
    }
    return files;
}

// A folder with the tool and its config/, as it is installed.
struct ProgramCopy
{
    QTemporaryDir dir;
    QString program() const { return dir.filePath("orbehub-cli"); }
    QString config(const char* file) const
    {
        return dir.filePath(QStringLiteral("config/") + file);
    }

    bool make()
    {
        const QString source = QStringLiteral(ORBE_BIN_DIR);
        if (!QFile::copy(source + "/orbehub-cli", program())) return false;
        QDir().mkpath(dir.filePath("config"));
        for (const QString& name : QDir(source + "/config").entryList(QDir::Files))
            if (!QFile::copy(source + "/config/" + name, dir.filePath("config/" + name)))
                return false;
        return true;
    }
};

} // namespace

class TestBrokenFiles : public QObject
{
    Q_OBJECT

private slots:
    // The rows run side by side: each is a real discovery pass over the virtual set.
    void listNamesTheBrokenFile()
    {
        const QList<Breakage> rows{
            {"catalogue missing", "OrbeHubDevices.json", "", nullptr,
             "orbe.hub: %1: cannot be read \\(No such file or directory\\): no keyboard of the "
             "cloud family is recognised",
             kSiblingLines},
            {"catalogue cut short", "OrbeHubDevices.json", "", "{\"keyboard\": [ {\"id\": 2807,",
             "orbe.hub: %1: not a JSON document \\(unterminated object at byte 27\\): none of its "
             "devices is recognised",
             kSiblingLines},
            {"catalogue without its arrays", "OrbeHubDevices.json", "", "{\"keyboards\": []}",
             "orbe.hub: %1: none of the arrays \"keyboard\", \"mouse\", \"hitBoxKeyboard\", "
             "\"hitBoxScreen\": no device is read",
             kSiblingLines},
            {"vendor id typo in VIDset0", "enumsetting.ini", "0x38EE, 0x25A7", "0x38EG, 0x25A7",
             "orbe.hub: %1: VIDset0 item \"0x38EG\" is not a vendor id; skipped",
             kCloudLines + kSiblingLines},
            {"custom list id typo", "CustomDeviceList.json", "\"0x38EE\", \"0x0030\"",
             "\"0x38EE\", \"0x003O\"",
             "orbe.hub: %1: line 8: the product id \"0x003O\" is not a number; the line is "
             "skipped",
             kCloudLines + kSiblingLines.mid(1)},
            {"custom list without its marker", "CustomDeviceList.json", "////CustomDeviceList////",
             "CustomDeviceList",
             "orbe.hub: %1: no line \"////CustomDeviceList////\": none of its devices is read",
             kCloudLines},
            // Over hidapi: the fallback ids are looked for, never 0000 (any device).
            {"device.ini vendor id typo",
             "device.ini",
             "",
             "[General]\nlastVID=38EG\nlastPID=502F\n",
             "orbe.device: %1: lastVID \"38EG\" is not a USB id \\(hexadecimal, not 0\\); 3151 is "
             "used instead\n"
             "orbehub-cli: no keyboard 3151:502F found",
             {},
             {"info"},
             3},
        };

        std::vector<std::unique_ptr<ProgramCopy>> copies;
        std::vector<std::unique_ptr<QProcess>> runs;
        QList<QMap<QString, QByteArray>> before;
        for (const Breakage& row : rows) {
            auto copy = std::make_unique<ProgramCopy>();
            QVERIFY2(copy->make(), row.name);
            const QString file = copy->config(row.file);
            if (!row.with) {
                QVERIFY(QFile::remove(file));
            } else if (!*row.replace) {
                writeFile(file, row.with);
            } else {
                QByteArray text = readFile(file);
                QVERIFY2(text.contains(row.replace), row.name);
                writeFile(file, text.replace(row.replace, row.with));
            }
            before.append(snapshot(copy->dir.path()));
            auto process = std::make_unique<QProcess>();
            QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
            env.insert("QT_LOGGING_RULES", "*.debug=false");
            process->setProcessEnvironment(env);
            process->start(copy->program(), row.args);
            copies.push_back(std::move(copy));
            runs.push_back(std::move(process));
        }

        for (size_t i = 0; i < runs.size(); ++i) {
            const Breakage& row = rows.at(int(i));
            QProcess& process = *runs[i];
            QVERIFY2(process.waitForFinished(60000), row.name);
            QCOMPARE(process.exitStatus(), QProcess::NormalExit);
            QCOMPARE(process.exitCode(), row.status);
            const QStringList out =
                QString::fromUtf8(process.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
            QVERIFY2(out == row.listed,
                     qPrintable(QStringLiteral("%1: %2").arg(row.name, out.join(" | "))));
            const QStringList err =
                QString::fromUtf8(process.readAllStandardError()).split('\n', Qt::SkipEmptyParts);
            const QStringList expected =
                QString::fromUtf8(row.stderrLines)
                    .arg(QRegularExpression::escape(copies[i]->config(row.file)))
                    .split('\n');
            bool matches = err.size() == expected.size();
            for (int l = 0; matches && l < err.size(); ++l)
                matches = QRegularExpression("^" + expected[l] + "$").match(err[l]).hasMatch();
            QVERIFY2(matches, qPrintable(QStringLiteral("%1: %2").arg(row.name, err.join(" | "))));
            QCOMPARE(snapshot(copies[i]->dir.path()), before.at(int(i)));
        }
    }
};

QTEST_GUILESS_MAIN(TestBrokenFiles)
#include "tst_brokenfiles.moc"
