// The translation check: what it counts as unfinished in a file, and the command over a shipped
// file and over sources that gained a text no file translates yet.

#include "TsAudit.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray tsFile(const QByteArray& messages, const QByteArray& language = "de_DE")
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!DOCTYPE TS>\n<TS version=\"2.1\" "
           "language=\"" +
           language + "\" sourcelanguage=\"zh_CN\">\n<context>\n    <name>Page</name>\n" +
           messages + "</context>\n</TS>\n";
}

bool writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

QByteArray readFile(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

struct Run
{
    int code = -1;
    QString out;
};

Run check(const QStringList& args)
{
    QProcess p;
    p.start(QStringLiteral(ORBE_TS_CHECK), args);
    if (!p.waitForFinished(120000)) return {};
    return {p.exitCode(), QString::fromUtf8(p.readAllStandardOutput())};
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void audit_data()
    {
        QTest::addColumn<QByteArray>("messages");
        QTest::addColumn<QString>("problem"); // empty: the file is finished

        QTest::newRow("finished") << QByteArray("<message><source>保存</source>"
                                                "<translation>Speichern</translation></message>")
                                  << QString();
        QTest::newRow("unfinished")
            << QByteArray("<message><source>保存</source>"
                          "<translation type=\"unfinished\">Speichern</translation></message>")
            << "保存: unfinished";
        QTest::newRow("empty") << QByteArray("<message><source>保存</source>"
                                             "<translation>  </translation></message>")
                               << "保存: empty translation";
        QTest::newRow("no translation element")
            << QByteArray("<message><source>保存</source></message>") << "保存: no translation";
        QTest::newRow("placeholder dropped")
            << QByteArray("<message><source>宏%1</source><translation>Makro</translation>"
                          "</message>")
            << "宏%1: translation lacks %1";
        QTest::newRow("placeholders reordered, escaped text")
            << QByteArray("<message><source>%1 的 %2</source>"
                          "<translation>%2 d&apos;&quot;%L1&quot;</translation></message>")
            << QString();
        QTest::newRow("second of two dropped")
            << QByteArray("<message><source>%1/%2</source><translation>%1</translation>"
                          "</message>")
            << "%1/%2: translation lacks %2";
        QTest::newRow("vanished text is not counted")
            << QByteArray("<message><source>旧</source>"
                          "<translation type=\"vanished\"></translation></message>")
            << QString();
        QTest::newRow("numerus form empty")
            << QByteArray("<message numerus=\"yes\"><source>%n 个</source><translation>"
                          "<numerusform>%n Taste</numerusform><numerusform></numerusform>"
                          "</translation></message>")
            << "%n 个: empty translation";
        QTest::newRow("numerus singular spelled out")
            << QByteArray("<message numerus=\"yes\"><source>%n 个</source><translation>"
                          "<numerusform>eine Taste</numerusform><numerusform>%n Tasten"
                          "</numerusform></translation></message>")
            << QString();
        QTest::newRow("a later entry of a clean context")
            << QByteArray("<message><source>保存</source><translation>Speichern</translation>"
                          "</message><message><source>删除</source>"
                          "<translation type=\"unfinished\"></translation></message>")
            << "Page: 删除: unfinished";
    }

    void audit()
    {
        QFETCH(QByteArray, messages);
        QFETCH(QString, problem);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("x.ts"));
        QVERIFY(writeFile(path, tsFile(messages)));

        const QStringList problems = TsAudit::problems(path);
        if (problem.isEmpty()) {
            QVERIFY2(problems.isEmpty(), qPrintable(problems.join('\n')));
        } else {
            QCOMPARE(problems.size(), 1);
            QVERIFY2(problems.first().startsWith(QLatin1String("x.ts: ")) &&
                         problems.first().endsWith(problem),
                     qPrintable(problems.first()));
        }
    }

    // Broken files are reported, never taken for finished ones.
    void unreadableFiles()
    {
        QTemporaryDir dir;
        const QString broken = dir.filePath(QStringLiteral("broken.ts"));
        QVERIFY(writeFile(broken, tsFile("<message><source>保存</source><translation>Spei")));
        QVERIFY(TsAudit::problems(broken).value(0).contains(QLatin1String("not a translation")));
        const QString empty = dir.filePath(QStringLiteral("empty.ts"));
        QVERIFY(writeFile(empty, QByteArray()));
        QCOMPARE(TsAudit::problems(empty).size(), 1);
        QCOMPARE(TsAudit::problems(dir.filePath(QStringLiteral("missing.ts"))).size(), 1);
    }

    // A shipped file with one of its finished entries turned back to unfinished fails the check,
    // and the report names that entry.
    void shippedFileWithUnfinishedEntry()
    {
        const QByteArray shipped =
            readFile(QStringLiteral(ORBE_SOURCE_DIR "/resources/i18n/ORBEStudio_de_DE.ts"));
        static const QRegularExpression finished(
            QStringLiteral("<source>([^<]+)</source>\\s*<translation>"));
        const auto m = finished.match(QString::fromUtf8(shipped));
        QVERIFY2(m.hasMatch(), "the German file has no finished entry to spoil");
        QString text = QString::fromUtf8(shipped);
        text.replace(m.capturedStart(), m.capturedLength(),
                     m.captured().replace(QLatin1String("<translation>"),
                                          QLatin1String("<translation type=\"unfinished\">")));
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("ORBEStudio_de_DE.ts"));
        QVERIFY(writeFile(path, text.toUtf8()));

        const Run run = check({path});
        QCOMPARE(run.code, 1);
        QVERIFY2(run.out.contains(m.captured(1) + QLatin1String(": unfinished")),
                 qPrintable(run.out));
        QVERIFY(run.out.contains(QLatin1String("0 passed, 1 failed")));
    }

    // A text in the sources that the English file does not hold yet is caught through lupdate,
    // which runs on copies: the files stay as they were. Once it has its English, the check passes.
    void newSourceTextWithoutEnglish()
    {
        QTemporaryDir dir;
        const QString src = dir.filePath(QStringLiteral("src"));
        QVERIFY(
            writeFile(src + QStringLiteral("/Page.cpp"),
                      "#include <QCoreApplication>\n"
                      "QString a() { return QCoreApplication::translate(\"Page\", \"保存\"); }\n"
                      "QString b() { return QCoreApplication::translate(\"Page\", \"删除\"); }\n"));
        const QString en = dir.filePath(QStringLiteral("ORBEStudio_en_US.ts"));
        const QByteArray saveOnly = tsFile("    <message>\n        <source>保存</source>\n        "
                                           "<translation>Save</translation>\n"
                                           "    </message>\n",
                                           "en_US");
        QVERIFY(writeFile(en, saveOnly));
        QVERIFY(TsAudit::problems(en).isEmpty()); // finished as it stands

        const QStringList args{"--lupdate", QStringLiteral(ORBE_LUPDATE), "--scan", src, en};
        Run run = check(args);
        QCOMPARE(run.code, 1);
        QVERIFY2(run.out.contains(QStringLiteral("Page: 删除: unfinished")), qPrintable(run.out));
        QVERIFY2(!run.out.contains(QStringLiteral("保存")), qPrintable(run.out));
        QCOMPARE(readFile(en), saveOnly);

        QByteArray both = saveOnly;
        both.replace("</context>", "    <message>\n        <source>删除</source>\n"
                                   "        <translation>Delete</translation>\n    </message>\n"
                                   "</context>");
        QVERIFY(writeFile(en, both));
        run = check(args);
        QCOMPARE(run.code, 0);
        QVERIFY(run.out.contains(QLatin1String("1 passed, 0 failed")));
    }
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
