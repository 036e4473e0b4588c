// The engineering console on the virtual keyboard: cells edited in the table are the bytes the
// next row write sends, the LED switch cells, rows sent by double-click and right-click, a typed
// command sent at once, the log's bursts, ids, lamps and version, "Save Matrix", "ON TOP".

#include "ConsoleRows.h"
#include "DefaultKeyMaps.h"
#include "DialogDeviceConsole.h"
#include "FakePlatform.h"
#include "SimRig.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTableView>

namespace {

QStringList captured;
void capture(QtMsgType, const QMessageLogContext& context, const QString& text)
{
    if (QByteArray(context.category) == "orbe.device") captured << text;
}

// A connected virtual keyboard with its console shown.
struct Console
{
    SimRig rig;
    DialogDeviceConsole dialog{rig.conn.get(), FakePlatform::shared()};

    Console()
    {
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    }

    template <typename T> T* find(const char* name) const
    {
        return dialog.findChild<T*>(QLatin1String(name));
    }
    QTableView* table() const { return find<QTableView>("tableView"); }
    ConsoleRows& rows() const { return rig.conn->console().rows(); }
    QString commandLine() const { return find<QLineEdit>("lineEditCmd")->text(); }
    QPoint cellCentre(quint8 command, int column) const
    {
        const QModelIndex index = table()->model()->index(rows().rowOf(command), column);
        table()->scrollTo(index);
        return table()->visualRect(index).center();
    }
    // Types text into a byte cell through its editor.
    void editCell(quint8 command, int column, const QString& text) const
    {
        doubleClick(command, column);
        // The editor of an earlier edit may linger until it is deleted: take the one shown.
        QLineEdit* editor = nullptr;
        QVERIFY(QTest::qWaitFor([&] {
            for (QLineEdit* e : table()->viewport()->findChildren<QLineEdit*>())
                if (e->isVisible()) editor = e;
            return editor != nullptr;
        }));
        editor->selectAll();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents(); // the delegate commits on a queued call
    }
    // A widget's double-click in QTest is the second press alone: the first comes before it.
    void doubleClick(quint8 command, int column) const
    {
        const QPoint at = cellCentre(command, column);
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, at);
    }
    void rightClick(quint8 command, int column) const
    {
        const QPoint at = cellCentre(command, column);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, table()->viewport()->mapToGlobal(at));
        QApplication::sendEvent(table()->viewport(), &event);
    }
    void click(const char* button) const
    {
        QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton);
    }
    QStringList logLines() const
    {
        return find<QPlainTextEdit>("plainTextEdit")->toPlainText().split(u'\n');
    }
};

QImage lamp(bool ok)
{
    return QPixmap(ok ? ":/images/General_OK4.png" : ":/images/General_NG4.png").toImage();
}

} // namespace

class TestConsole : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    void init() { FakePlatform::shared().reset(); }

    // A brightness typed into the LED row goes out with the page's next speed change, and a
    // text that is no number leaves the cell alone.
    void editedCellGoesOutWithTheNextRowWrite()
    {
        Console c;
        c.rig.keyboard->model().clearReceivedFrames();
        const int row = c.rows().rowOf(0x07);
        c.editCell(0x07, 5, "x");
        const int before = c.rows().cell(row, 3);
        c.editCell(0x07, 5, QString::number(before == 2 ? 1 : 2));
        const int brightness = before == 2 ? 1 : 2;
        QCOMPARE(c.rows().cell(row, 3), brightness);
        // Shown in the command line, not sent.
        QCOMPARE(c.commandLine().split(u' ').at(3).toInt(nullptr, 16), brightness);
        QVERIFY(c.rig.conn->isIdle());
        QVERIFY(c.rig.fw().receivedFrames().isEmpty());

        c.rig.conn->DoSetLedSpeed(1);
        QVERIFY(c.rig.settle());
        const QList<QByteArray> sent = framesOf(c.rig.fw(), 0x07, 8);
        QCOMPARE(sent.size(), 1);
        const quint8 effect = quint8(c.rows().cell(row, 1));
        QCOMPARE(sent.first(), c.rows().bytes(row));
        QCOMPARE(int(quint8(sent.first().at(3))), brightness);
        QCOMPARE(int(c.rig.fw().ledParams(effect).brightness), brightness);
        QCOMPARE(int(c.rig.fw().ledParams(effect).speed), 3);
    }

    // Columns 0 to 2 send their row on a double-click or a right-click; the LED switch cells
    // flip on a click; the byte cells open their editor and send nothing.
    void rowsSentFromTheTable()
    {
        Console c;
        c.rig.keyboard->model().clearReceivedFrames();
        c.editCell(0x06, 3, "4");
        c.doubleClick(0x06, 2);
        QVERIFY(c.rig.settle());
        QCOMPARE(framesOf(c.rig.fw(), 0x06, 8),
                 QList<QByteArray>{QByteArray::fromHex("06040000000000F5")});
        QCOMPARE(int(c.rig.fw().debounce()), 4);

        QVERIFY(c.rig.fw().ledOn());
        QTest::mouseClick(c.table()->viewport(), Qt::LeftButton, {}, c.cellCentre(0x05, 3));
        QCOMPARE(c.commandLine(), "05 00 01 00 00 00 00 00");
        QVERIFY(c.rig.settle());
        QVERIFY(framesOf(c.rig.fw(), 0x05).isEmpty());
        c.rightClick(0x05, 0);
        QVERIFY(c.rig.settle());
        QCOMPARE(framesOf(c.rig.fw(), 0x05, 8),
                 QList<QByteArray>{QByteArray::fromHex("05000100000000F9")});
        QVERIFY(!c.rig.fw().ledOn());
    }

    void typedCommandGoesOutAtOnce_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QByteArray>("frame"); // the first 8 bytes, checksum closed
        QTest::newRow("debounce") << "06 05" << QByteArray::fromHex("06050000000000F4");
        QTest::newRow("own checksum replaced")
            << "06 05 00 00 00 00 00 11" << QByteArray::fromHex("06050000000000F4");
        QTest::newRow("hex as far as it goes")
            << "06 zz" << QByteArray::fromHex("06000000000000F9");
    }
    void typedCommandGoesOutAtOnce()
    {
        QFETCH(QString, typed);
        QFETCH(QByteArray, frame);
        Console c;
        c.rig.keyboard->model().clearReceivedFrames();
        auto* line = c.find<QLineEdit>("lineEditCmd");
        line->clear();
        QTest::keyClicks(line, typed);
        c.click("pushButtonWrite");
        // No wait: the kick sends it before any time passes.
        QCOMPARE(framesOf(c.rig.fw(), quint8(frame.at(0)), 8), QList<QByteArray>{frame});
        QVERIFY(c.rig.settle());

        // The log shows the frame and the reply in groups of four bytes.
        QString head = QString::fromLatin1(frame.toHex(' ').toUpper());
        head.insert(11, u' ');
        QVERIFY2(c.logLines().contains(head), qPrintable(c.logLines().join(u'|')));
        // Opened later, a console shows the same burst.
        DialogDeviceConsole late(c.rig.conn.get(), FakePlatform::shared());
        QCOMPARE(late.findChild<QPlainTextEdit*>("plainTextEdit")->toPlainText(),
                 c.find<QPlainTextEdit>("plainTextEdit")->toPlainText());
        // After half a second of quiet the next line starts a new log.
        c.rig.conn->DoStopKeyTest(); // the key stream's reports are logged as they come
        QVERIFY(c.rig.settle());
        c.rig.clock.advance(600);
        c.rig.conn->DoSetDebounce(2);
        QVERIFY(c.rig.settle());
        QVERIFY(c.logLines().contains("06 02 00 00  00 00 00 F7"));
        QVERIFY(!c.logLines().contains(head));

        // While the keyboard is read whole, Write does nothing.
        c.rig.keyboard->model().clearReceivedFrames();
        c.rig.conn->DoReadAll();
        c.click("pushButtonWrite");
        QVERIFY(c.rig.settle());
        QVERIFY(framesOf(c.rig.fw(), 0x06).isEmpty());
    }

    // The lamps, the version label, the ids with Connect and Refresh, and the product-id list.
    void idsLampsAndVersion()
    {
        Console c;
        QCOMPARE(c.find<QLabel>("labelVersion")->text(), "Ver:0x300 Id:2807[AF7]");
        QCOMPARE(c.find<QLabel>("labelFlag0")->pixmap().toImage(), lamp(true));
        QCOMPARE(c.find<QLabel>("labelFlag1")->pixmap().toImage(), lamp(true));

        auto* vid = c.find<QLineEdit>("lineEditVID");
        vid->selectAll();
        QTest::keyClicks(vid, "FFFF");
        c.click("pushButtonConnect");
        QVERIFY(c.rig.settle());
        QVERIFY(!c.rig.conn->isConnected());
        QCOMPARE(c.find<QLabel>("labelFlag0")->pixmap().toImage(), lamp(false));
        QCOMPARE(c.find<QLabel>("labelFlag1")->pixmap().toImage(), lamp(false));

        vid->selectAll();
        QTest::keyClicks(vid, "3151");
        c.click("pushButtonRefresh");
        QVERIFY(c.rig.settle());
        QVERIFY(c.rig.conn->isConnected());
        auto* combo = c.find<QComboBox>("comboBoxPID");
        const QString pid = QStringLiteral("%1")
                                .arg(c.rig.keyboard->productId(), 4, 16, QLatin1Char('0'))
                                .toUpper();
        QCOMPARE(combo->currentText(), pid);
        QCOMPARE(c.find<QLineEdit>("lineEditPID")->text(), pid);
        QCOMPARE(c.find<QLabel>("labelFlag1")->pixmap().toImage(), lamp(true));
    }

    // "Save Matrix" makes the keyboard's layer 0 the default matrix and prints it as source.
    void saveMatrixPrintsTheKeyboardsLayer()
    {
        Console c;
        const quint8 esc[4] = {0x00, 0x00, 0x29, 0x00};
        c.rig.conn->DoSetKey(0x04, esc, 0, 1); // the A key sends Escape
        QVERIFY(c.rig.readAgain());
        const QByteArray layer = c.rig.conn->GetKeyMatrix(0);
        QVERIFY(layer != DefaultKeyMaps::DefaultKeyMap());

        captured.clear();
        const QtMessageHandler previous = qInstallMessageHandler(capture);
        c.click("pushButtonSaveMatrix");
        qInstallMessageHandler(previous);
        QCOMPARE(DefaultKeyMaps::DefaultKeyMap(), layer);
        QCOMPARE(captured.size(), 128);
        int position = 0;
        while (layer.mid(position * 4, 4) == DefaultKeyMaps::factoryKeyMap().mid(position * 4, 4))
            ++position;
        const auto b = [&](int i) { return int(quint8(layer.at(position * 4 + i))); };
        QCOMPARE(captured.at(position),
                 QString::asprintf("%3d,%3d,%3d,%3d,  // %3d  0x%02X%02X%02X%02X", b(0), b(1), b(2),
                                   b(3), position, b(0), b(1), b(2), b(3)));
        DefaultKeyMaps::SetDefaultKeyMap(DefaultKeyMaps::factoryKeyMap());
    }

    void onTopAsksThePlatform()
    {
        Console c;
        auto* box = c.find<QCheckBox>("checkBoxOntop");
        box->click();
        box->click();
        const QString id = QStringLiteral("0x%1").arg(c.dialog.winId(), 0, 16);
        QCOMPARE(FakePlatform::shared().operationsNamed({"setWindowPos"}),
                 QStringList({"setWindowPos(" + id + ", TopMost, 0,0 0x0, 0x3)",
                              "setWindowPos(" + id + ", NoTopMost, 0,0 0x0, 0x3)"}));
    }
};

QTEST_MAIN(TestConsole)
#include "tst_console.moc"
