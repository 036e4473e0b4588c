// The light page against the virtual keyboard: keys painted by click, by band and at random,
// written to a picture layer and read back identical; works saved, found again by a new page,
// chosen, updated and deleted with the question answered both ways; a works file that can't be
// read shows an empty library, crashes nothing and loses no file. The works store on its own:
// foreign entries left out, a failed write leaving nothing half done, and the folder the file
// goes to, beside the program in a build tree that can be written, else the user's data folder.

#include "DialogColorPicker.h"
#include "FrameLight.h"
#include "InstallLayout.h"
#include "KeyPositions.h"
#include "KeyboardButton.h"
#include "LightWorkStore.h"
#include "ModuleEfMode.h"
#include "ModuleKeyboard.h"
#include "SimRig.h"
#include "TestSupport.h"

#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScopeGuard>
#include <QStandardItemModel>
#include <QTableView>
#include <QTimer>
#include <QtTest>

namespace {

constexpr quint8 kLedParam = 0x07;
constexpr quint8 kWritePicture = 0x0C;
constexpr quint8 kReadPicture = 0x8C;
constexpr int kKeyBytes = FrameLight::kKeyPositions * 3;
constexpr quint8 kEsc = 41, kQ = 20, kA = 4, kSpace = 44, kFn = 250;
const QColor kBlack(0, 0, 0);
const QList<LightWork> kTwoWorks{{"iVBORw0KGgo=", "Sunset", "ff000000ff00"}, {"", "", "0000ff"}};

// The light page on a read keyboard, shown, its works in a folder of the test's own.
struct LightRig : SimRig
{
    QTemporaryDir home;
    std::unique_ptr<FrameLight> page;

    LightRig() { restart(); }
    QString folder() const { return home.filePath("work"); }
    QString worksFile() const { return folder() + "/ledwork.json"; }
    // A new page on the same folder, as after a restart of the hub.
    void restart()
    {
        page = std::make_unique<FrameLight>(conn.get(), folder(), &clock);
        page->show();
        keyboard->model().clearReceivedFrames();
    }
    template <class T = QWidget> T* ui(const char* name) const
    {
        return widget<T>(widget<QWidget>(page.get(), "page1"), name);
    }
    void click(const char* name) { QTest::mouseClick(ui<QAbstractButton>(name), Qt::LeftButton); }
    KeyboardButton* key(quint8 code) const { return page->keyboard()->button(code); }
    void paint(quint8 code) { QTest::mouseClick(key(code), Qt::LeftButton); }
    // The brush's colour typed into the picker's boxes, as a user sets it.
    void chooseColour(const QColor& colour)
    {
        QTest::mouseClick(ui<QLabel>("labelColor"), Qt::LeftButton);
        DialogColorPicker* picker = page->picker();
        QVERIFY(picker->isVisible());
        const int channels[] = {colour.red(), colour.green(), colour.blue()};
        const char* boxes[] = {"lineEditR", "lineEditG", "lineEditB"};
        for (int i = 0; i < 3; ++i) {
            auto* box = widget<QLineEdit>(picker, boxes[i]);
            box->selectAll();
            QTest::keyClicks(box, QString::number(channels[i]));
        }
        picker->hide();
    }
    QColor mapColour(quint8 code) const
    {
        const QByteArray map = page->colorMap();
        const int at = PositionOfCode(code) * 3;
        return QColor(quint8(map.at(at)), quint8(map.at(at + 1)), quint8(map.at(at + 2)));
    }
    QTableView* table() const { return ui<QTableView>("tableView"); }
    QStandardItemModel* works() const { return page->worksModel(); }
    // Clicks a cell of the works table; a click on "delete" is answered with the button given.
    void clickCell(int row, int column, QMessageBox::StandardButton answer = QMessageBox::NoButton)
    {
        bool asked = false;
        if (answer != QMessageBox::NoButton)
            QTimer::singleShot(0, page.get(), [&] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                if (!box) return;
                asked = box->text() == QStringLiteral("确认要删除此作品吗？") &&
                        box->windowTitle() == QStringLiteral("提示");
                box->button(answer)->click();
            });
        const QRect cell = table()->visualRect(works()->index(row, column));
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, cell.center());
        QCOMPARE(asked, answer != QMessageBox::NoButton);
    }
    // The works as the file holds them: name and map text of each.
    QList<QStringList> fileWorks() const
    {
        QList<QStringList> out;
        for (const QJsonValue& v : QJsonDocument::fromJson(readFile(worksFile())).array())
            out << QStringList{v["name"].toString(), v["data"].toString()};
        return out;
    }
    QStringList names() const
    {
        QStringList out;
        for (int row = 0; row < works()->rowCount(); ++row)
            out << works()->item(row, 1)->text();
        return out;
    }
};

} // namespace

class TestLightPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    // Keys painted three ways, written to layer 2, cleared, and read back from the keyboard.
    void paintWriteAndReadLayer()
    {
        LightRig rig;
        QCOMPARE(rig.page->currentColor(), QColor(0, 220, 0)); // the brush a new page holds
        QCOMPARE(rig.key(kQ)->fillColour(), kBlack);           // every key starts black
        QCOMPARE(rig.page->colorMap(), QByteArray(FrameLight::kMapSize, '\0'));

        rig.chooseColour(QColor(255, 128, 0));
        QCOMPARE(rig.page->currentColor(), QColor(255, 128, 0));
        QVERIFY(rig.ui<QLabel>("labelColor")->styleSheet().contains("rgb(255, 128, 0)"));
        for (quint8 code : {kQ, kSpace, kFn})
            rig.paint(code);
        // A band from the keyboard's corner over the top row's first five keys.
        ModuleKeyboard* board = rig.page->keyboard();
        rig.chooseColour(QColor(10, 20, 250));
        QTest::mousePress(board, Qt::LeftButton, {}, QPoint(2, 2));
        QTest::mouseMove(board, QPoint(150, 40));
        QTest::mouseMove(board, QPoint(300, 60));
        QTest::mouseRelease(board, Qt::LeftButton, {}, QPoint(300, 60));
        // At random: the same key twice takes two colours.
        rig.click("checkBoxRam");
        rig.paint(kA);
        const QColor first = rig.key(kA)->fillColour();
        rig.paint(kA);
        QVERIFY(rig.key(kA)->fillColour() != first);
        rig.click("checkBoxRam");

        const QList<QPair<quint8, QColor>> expected{{kQ, QColor(255, 128, 0)},
                                                    {kSpace, QColor(255, 128, 0)},
                                                    {kFn, QColor(255, 128, 0)},
                                                    {kEsc, QColor(10, 20, 250)},
                                                    {58, QColor(10, 20, 250)},
                                                    {61, QColor(10, 20, 250)},
                                                    {62, kBlack},
                                                    {53, kBlack}};
        for (const auto& [code, colour] : expected) {
            QCOMPARE(rig.key(code)->fillColour(), colour);
            QCOMPARE(rig.mapColour(code), colour);
        }
        QCOMPARE(rig.mapColour(kA), rig.key(kA)->fillColour());
        QVERIFY(!rig.key(kEsc)->isChecked());         // the band leaves no key chosen
        QVERIFY(rig.fw().receivedFrames().isEmpty()); // painting sends nothing

        // Layer 3 (the third button, slot 2): the effect first, then seven pages; again when
        // clicked again.
        const QByteArray painted = rig.page->colorMap();
        for (int round = 1; round <= 2; ++round) {
            rig.click("radioButtonW2");
            QVERIFY(rig.settle());
            const QList<QByteArray> heads = framesOf(rig.fw(), kLedParam, 5);
            QCOMPARE(heads.size(), round);
            QCOMPARE(heads.last().at(1), char(13));
            QCOMPARE(heads.last().at(4), char(0x20));
            const QList<QByteArray> pages = framesOf(rig.fw(), kWritePicture, 64);
            QCOMPARE(pages.size(), 7 * round);
            for (int p = 0; p < 7; ++p) {
                const QByteArray& frame = pages.at((round - 1) * 7 + p);
                QByteArray head = hex("0C 02 FF 00 38 00 00");
                head[3] = char(p);
                head[5] = char(p == 6); // the last page says so
                QCOMPARE(frame.left(7), head);
                QCOMPARE(frame.mid(8, 56), painted.mid(p * 56, 56));
            }
        }
        QCOMPARE(rig.fw().picture(2).left(kKeyBytes), painted.left(kKeyBytes));
        QCOMPARE(rig.fw().ledEffect(), quint8(13));
        // The hidden effect panel follows the keyboard's answer and sends nothing back.
        rig.keyboard->model().clearReceivedFrames();
        QVERIFY(rig.readAgain());
        QCOMPARE(widget<ModuleEfMode>(rig.page.get(), "frameLEDMode")->currentEffect(), quint8(13));
        QVERIFY(framesOf(rig.fw(), kLedParam).isEmpty());

        rig.click("pushButtonReset");
        QCOMPARE(rig.page->colorMap(), QByteArray(FrameLight::kMapSize, '\0'));
        QCOMPARE(rig.key(kQ)->fillColour(), kBlack);

        rig.keyboard->model().clearReceivedFrames();
        rig.click("radioButtonR2");
        QVERIFY(rig.settle());
        const QList<QByteArray> reads = framesOf(rig.fw(), kReadPicture, 4);
        QCOMPARE(reads.size(), 6);
        for (int p = 0; p < 6; ++p)
            QCOMPARE(reads.at(p), QByteArray::fromHex("8C02FF").append(char(p)));
        QCOMPARE(rig.page->colorMap().left(kKeyBytes), painted.left(kKeyBytes));
        for (const auto& [code, colour] : expected)
            QCOMPARE(rig.key(code)->fillColour(), colour);
        QCOMPARE(rig.fw().ledEffect(), quint8(13)); // a read changes no effect
    }

    // A work saved, found by the next page, chosen, updated, then deleted: No keeps it and
    // loads nothing, Yes removes it and the file keeps the rest in order.
    void worksLibrary()
    {
        LightRig rig;
        QVERIFY(rig.ui("pushButtonUpdate")->isHidden());
        QCOMPARE(rig.ui<QLineEdit>("lineEditName")->text(), QStringLiteral("我的作品"));
        rig.paint(kQ);
        rig.ui<QLineEdit>("lineEditName")->setText("  Sunset  ");
        rig.click("pushButtonSave");
        const QByteArray sunset = rig.page->colorMap();
        rig.click("pushButtonReset");
        rig.paint(kA);
        rig.ui<QLineEdit>("lineEditName")->clear();
        rig.click("pushButtonSave");
        QCOMPARE(rig.fileWorks(),
                 (QList<QStringList>{{"Sunset", LightWorkStore::toHex(sunset)},
                                     {"", LightWorkStore::toHex(rig.page->colorMap())}}));

        rig.restart();
        QCOMPARE(rig.names(), (QStringList{"Sunset", ""}));
        QImage preview;
        QVERIFY(preview.loadFromData(
            QByteArray::fromBase64(rig.works()->item(0, 0)->data(257).toString().toLatin1()),
            "PNG"));
        QCOMPARE(preview.size(), rig.page->keyboard()->size());
        // Inside a key, clear of its legend: Q was painted, A and Space were dark.
        const auto inKey = [&](quint8 code) {
            const QRect g = rig.key(code)->geometry();
            return preview.pixelColor(g.left() + 6, g.center().y());
        };
        QVERIFY(inKey(kQ).green() > 2 * inKey(kQ).red());
        QCOMPARE(inKey(kA), inKey(kSpace));
        QVERIFY(inKey(kA).green() < inKey(kQ).green());

        rig.clickCell(0, 1);
        QCOMPARE(rig.page->selectedRow(), 0);
        QVERIFY(!rig.ui("pushButtonUpdate")->isHidden());
        QCOMPARE(rig.ui<QLineEdit>("lineEditName")->text(), QStringLiteral("Sunset"));
        QCOMPARE(rig.page->colorMap(), sunset);
        QCOMPARE(rig.key(kQ)->fillColour(), QColor(0, 220, 0));
        QCOMPARE(rig.key(kA)->fillColour(), kBlack);

        rig.paint(kEsc);
        rig.ui<QLineEdit>("lineEditName")->setText("Dawn");
        rig.click("pushButtonUpdate");
        const QString dawn = LightWorkStore::toHex(rig.page->colorMap());
        QCOMPARE(rig.fileWorks().first(), (QStringList{"Dawn", dawn}));
        QCOMPARE(rig.works()->item(0, 0)->data(FrameLight::kMapRole).toString(), dawn);

        // No: the row stays, is the one chosen, and its colours are not loaded.
        rig.clickCell(1, FrameLight::kManageColumn, QMessageBox::No);
        QCOMPARE(rig.names(), (QStringList{"Dawn", ""}));
        QCOMPARE(rig.page->selectedRow(), 1);
        QCOMPARE(LightWorkStore::toHex(rig.page->colorMap()), dawn);
        // Yes: gone from the table and the file; the name proposes the count left.
        const QStringList second = rig.fileWorks().last();
        rig.clickCell(0, FrameLight::kManageColumn, QMessageBox::Yes);
        QCOMPARE(rig.names(), QStringList{""});
        QCOMPARE(rig.fileWorks(), QList<QStringList>{second});
        QCOMPARE(rig.page->selectedRow(), -1);
        QVERIFY(rig.ui("pushButtonUpdate")->isHidden());
        QCOMPARE(rig.ui<QLineEdit>("lineEditName")->text(), QStringLiteral("我的作品1"));
        // Update with nothing chosen writes nothing.
        const QByteArray before = readFile(rig.worksFile());
        rig.click("pushButtonUpdate");
        QCOMPARE(readFile(rig.worksFile()), before);
        rig.clickCell(0, FrameLight::kManageColumn, QMessageBox::Yes);
        QCOMPARE(rig.ui<QLineEdit>("lineEditName")->text(), QStringLiteral("我的作品0"));
        QCOMPARE(rig.fileWorks(), QList<QStringList>{});

        // A work whose map text is cut short colours what it has, leaves the rest dark, and
        // the keys past its end can still be painted.
        writeFile(rig.worksFile(), R"([{"name": "Short", "data": "ff00"}])");
        rig.restart();
        rig.clickCell(0, 1);
        QCOMPARE(rig.key(CodeOfPosition(0))->fillColour(), QColor(255, 0, 0));
        QCOMPARE(rig.key(kSpace)->fillColour(), kBlack);
        rig.paint(kSpace);
        QCOMPARE(rig.mapColour(kSpace), QColor(0, 220, 0));
        QCOMPARE(rig.page->colorMap().size(), FrameLight::kMapSize);
    }

    // A works file that isn't a library: the page opens with an empty list, the file and its
    // neighbours stay as they were, and the first save keeps the old file beside the new one.
    void brokenWorksFile_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("truncated") << QByteArray("[\n    {\n        \"data\": \"ff00");
        QTest::newRow("not JSON") << QByteArray("\x89PNG\r\n\x1a\n garbage", 16);
        QTest::newRow("an object, not a list") << QByteArray("{\"name\": \"x\"}");
        QTest::newRow("empty") << QByteArray();
    }
    void brokenWorksFile()
    {
        QFETCH(QByteArray, content);
        LightRig rig;
        writeFile(rig.worksFile(), content);
        writeFile(rig.folder() + "/notes.txt", "kept");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^(broken file|not a list)"));
        rig.restart();
        QCOMPARE(rig.works()->rowCount(), 0);
        QCOMPARE(readFile(rig.worksFile()), content);

        rig.paint(kQ);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^the broken works file is kept"));
        rig.click("pushButtonSave");
        QCOMPARE(rig.fileWorks().size(), 1);
        const QStringList kept =
            QDir(rig.folder()).entryList({"ledwork.json.broken-*"}, QDir::Files);
        QCOMPARE(kept.size(), 1);
        QCOMPARE(readFile(rig.folder() + "/" + kept.first()), content);
        QCOMPARE(readFile(rig.folder() + "/notes.txt"), QByteArray("kept"));
        rig.restart();
        QCOMPARE(rig.names(), QStringList{"我的作品"});
    }

    // Entries that aren't works are left out; the rest load in order.
    void foreignEntries()
    {
        QTemporaryDir dir;
        writeFile(dir.filePath("ledwork.json"), R"([1, {"name": "A", "data": "01"}, "x", {}])");
        LightWorkStore store(dir.path());
        QCOMPARE(store.load(), (QList<LightWork>{{"", "A", "01"}, {"", "", ""}}));
        QVERIFY(!store.loadedBroken());
    }

    // A file that can't be replaced leaves the old one whole.
    void failedWrite()
    {
        QTemporaryDir dir;
        LightWorkStore store(dir.path());
        QVERIFY(store.save(kTwoWorks));
        QVERIFY(QFile::remove(store.filePath()));
        QVERIFY(QDir().mkpath(store.filePath())); // a folder where the file would go
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression("cannot write|could not replace|write failed"));
        QVERIFY(!store.save({}));
        QVERIFY(QFileInfo(store.filePath()).isDir());
        QVERIFY(QDir(store.filePath()).isEmpty());
    }

    void colourMapText()
    {
        const QByteArray map = QByteArray::fromHex("00dc00ff8000");
        QCOMPARE(LightWorkStore::toHex(map), QStringLiteral("00dc00ff8000"));
        QCOMPARE(LightWorkStore::fromHex("00DC00ff8000"), map);
        QCOMPARE(LightWorkStore::fromHex("00dcZZ").size(), 2); // bad text: a short map
    }

    // Beside the program in a build tree that can be written; in the user's data folder when
    // installed or when the program's folder can't hold one. The folder is made at once, a
    // missing file is not a broken one, and the works come back in order from an indented file.
    void worksFolder_data()
    {
        QTest::addColumn<QStringList>("folders"); // made under the root
        QTest::addColumn<QString>("program");     // relative to the root
        QTest::addColumn<bool>("beside");
        const QString shared = QDir::cleanPath(QStringLiteral("bin/" ORBE_DATA_FROM_BIN));
        QTest::newRow("build tree") << QStringList{"bin/config"} << "bin" << true;
        QTest::newRow("installed") << QStringList{"bin", shared + "/config"} << "bin" << false;
        QTest::newRow("program folder is not a folder") << QStringList{} << "file" << false;
    }
    void worksFolder()
    {
        QFETCH(QStringList, folders);
        QFETCH(QString, program);
        QFETCH(bool, beside);
        QTemporaryDir root;
        for (const QString& folder : folders)
            QVERIFY(QDir().mkpath(root.filePath(folder)));
        writeFile(root.filePath("file"), "not a folder");

        const QString folder = InstallLayout(root.filePath(program)).userFilesDir("work");
        QCOMPARE(folder, beside ? root.filePath(program + "/work")
                                : InstallLayout::userDataDir() + "/work");
        LightWorkStore store(folder);
        const auto tidy = qScopeGuard([&] { QFile::remove(store.filePath()); });
        QVERIFY(QDir(folder).exists());
        QVERIFY(store.load().isEmpty());
        QVERIFY(!store.loadedBroken());
        QVERIFY(store.save(kTwoWorks));
        QVERIFY(store.keptBrokenFile().isEmpty());
        QCOMPARE(LightWorkStore(folder).load(), kTwoWorks);
        QVERIFY(readFile(store.filePath()).contains("\n    {"));
    }
};

QTEST_MAIN(TestLightPage)
#include "tst_lightpage.moc"
