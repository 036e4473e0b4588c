// orbe_ts_check [--lupdate LUPDATE --scan DIR...] FILE.ts...
// Lists every text of the given translation files that is not finished and exits 1 if there is
// one. With --lupdate, it first brings copies of the files up to date with the sources under the
// --scan folders (as the update_translations target does), so that a text added to the code but
// never given its translation counts as unfinished too; the files themselves are not touched.

#include "TsAudit.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QStringList args = app.arguments().mid(1);
    QString lupdate;
    QStringList scan;
    QStringList files;
    for (int i = 0; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--lupdate") && i + 1 < args.size())
            lupdate = args[++i];
        else if (args[i] == QLatin1String("--scan") && i + 1 < args.size())
            scan << args[++i];
        else
            files << args[i];
    }
    QTextStream err(stderr);
    if (files.isEmpty() || (!lupdate.isEmpty() && scan.isEmpty())) {
        err << "usage: orbe_ts_check [--lupdate LUPDATE --scan DIR...] FILE.ts...\n";
        return 2;
    }

    QTemporaryDir scratch;
    if (!lupdate.isEmpty()) {
        QStringList copies;
        for (const QString& f : files) {
            const QString copy = scratch.filePath(QFileInfo(f).fileName());
            if (!QFile::copy(f, copy)) {
                err << f << ": cannot be copied\n";
                return 2;
            }
            QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
            copies << copy;
        }
        QProcess p;
        p.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        p.start(
            lupdate,
            QStringList{"-silent", "-no-obsolete", "-locations", "none", "-extensions", "cpp,h,ui"}
                << scan << QStringLiteral("-ts") << copies);
        if (!p.waitForFinished(120000) || p.exitStatus() != QProcess::NormalExit ||
            p.exitCode() != 0) {
            err << lupdate << " failed\n";
            return 2;
        }
        files = copies;
    }

    QTextStream out(stdout);
    int failed = 0;
    for (const QString& f : files) {
        const QStringList problems = TsAudit::problems(f);
        for (const QString& line : problems)
            out << line << '\n';
        if (!problems.isEmpty()) ++failed;
    }
    out << (files.size() - failed) << " passed, " << failed << " failed\n";
    return failed ? 1 : 0;
}
