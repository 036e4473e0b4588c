// The macro page driven as a user drives it: recording from key and mouse events, the insert
// dialog, deleting, delays, the list of macros. Each case checks the squares, the file the store
// wrote and the bytes the keyboard is given.

#include "DialogFNPicker.h"
#include "FrameDeviceHolder.h"
#include "FrameMacro.h"
#include "MacroBlob.h"
#include "MacroItem.h"
#include "MacroSquare.h"
#include "ModuleAddMacroSquare.h"
#include "ModuleGenKeymapping.h"
#include "ModuleMacroManager.h"
#include "SimRig.h"
#include "TestSupport.h"

#include <QCheckBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>
#include <functional>

namespace {

// Pairs as text: kind (K key, M mouse button, P position), + for a press, - for a release, the
// value in hex, then ':' and the delay. A pair whose second half is not a delay shows "!".
QString pairText(int type, bool down, int value, int delayType, int delay)
{
    static const char kKinds[] = "KMPD";
    QString text = QString(QLatin1Char(kKinds[qBound(0, type, 3)]));
    if (type <= MacroEvent::MouseButton) text += down ? u'+' : u'-';
    text += QString::number(value, 16).toUpper();
    return text + (delayType == MacroEvent::Delay ? QStringLiteral(":%1").arg(delay)
                                                  : QStringLiteral("!"));
}

QString describeSquares()
{
    const QList<MacroSquare*>& squares = FrameMacro::squares();
    QStringList pairs;
    for (qsizetype i = 0; i < squares.size(); i += 2) {
        const MacroSquare* delay = i + 1 < squares.size() ? squares[i + 1] : nullptr;
        pairs << pairText(squares[i]->type(), squares[i]->down(), squares[i]->value(),
                          delay ? delay->type() : -1, delay ? delay->value() : 0);
    }
    return pairs.join(u' ');
}

// The same, from a macro's event file as written.
QString describeFile(const QString& path)
{
    const QJsonArray data = QJsonDocument::fromJson(readFile(path)).object()["data"].toArray();
    QStringList pairs;
    for (qsizetype i = 0; i < data.size(); i += 2) {
        const QJsonObject a = data[i].toObject();
        const QJsonObject d = i + 1 < data.size() ? data[i + 1].toObject() : QJsonObject();
        pairs << pairText(a["type"].toInt(), a["down"].toBool(), a["value"].toInt(),
                          d["type"].toInt(-1), d["value"].toInt());
    }
    return pairs.join(u' ');
}

// A page on a store of its own, in virtual time, shown and holding the keyboard focus.
struct PageRig
{
    QTemporaryDir dir;
    ManualClock clock;
    std::unique_ptr<ModuleMacroManager> store;
    std::unique_ptr<FrameMacro> page;

    // prepare runs on the store's folder before the store loads it.
    explicit PageRig(const std::function<void(const QString&)>& prepare = {})
    {
        if (prepare) prepare(dir.filePath("macro"));
        store = std::make_unique<ModuleMacroManager>(dir.path());
        page = std::make_unique<FrameMacro>(*store, nullptr, &clock);
        page->resize(1124, 740);
        page->show();
        page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
    }
    template <class T> T* find(const char* name) const
    {
        T* widget = page->findChild<T*>(QLatin1String(name));
        if (!widget) qFatal("no widget %s", name);
        return widget;
    }
    void click(const char* name) { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }
    void startRecording()
    {
        click("pushButtonRecord");
        QVERIFY(page->isRecording());
        QCOMPARE(QApplication::focusWidget(), page.get());
    }
    void stopRecording() { click("pushButtonRecord"); }
    // Keys go where the focus is, as a user's do.
    void key(QEvent::Type type, int qtKey, quint32 native = 0, bool repeat = false)
    {
        QKeyEvent event(type, qtKey, Qt::NoModifier, native, 0, 0, QString(), repeat);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }
    // A spot of the grid with no square: the click travels up to the page.
    QWidget* gridArea() const { return find<QWidget>("gridWidget"); }
    QPoint emptySpot() const { return gridArea()->rect().bottomRight() - QPoint(8, 8); }
    void mouse(QEvent::Type type, Qt::MouseButton button)
    {
        const QPointF at = emptySpot();
        QMouseEvent event(type, at, gridArea()->mapToGlobal(at), button,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : button,
                          Qt::NoModifier);
        QApplication::sendEvent(gridArea(), &event);
    }
    QString file(int id = 0) const { return store->eventPath(quint8(id)); }
    QString sizeText() const { return find<QLabel>("labelSize")->text(); }
    MacroSquare* square(int index) const { return FrameMacro::squares().value(index); }
    // The insert dialog, filled by fill and confirmed.
    void insertWith(const std::function<void(ModuleAddMacroSquare*)>& fill)
    {
        click("pushButtonInsert");
        auto* dialog = page->findChild<ModuleAddMacroSquare*>();
        QVERIFY(dialog && dialog->isVisible());
        fill(dialog);
        QTest::mouseClick(dialog->findChild<QPushButton*>("pushButtonOK"), Qt::LeftButton);
        clock.advance(FrameMacro::kInsertSaveMs);
    }
};

// Records press/release pairs of A, gap ms apart, until the macro has `pairs` actions.
void recordPairs(PageRig& rig, int pairs, int gap)
{
    rig.startRecording();
    for (int i = 0; i < pairs; ++i) {
        rig.key(i % 2 ? QEvent::KeyRelease : QEvent::KeyPress, Qt::Key_A);
        rig.clock.advance(gap);
    }
    rig.stopRecording();
}

} // namespace

class TestMacroPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void recordKeysAndMouse()
    {
        PageRig rig;
        rig.startRecording();
        rig.key(QEvent::KeyPress, Qt::Key_A);
        rig.clock.advance(120);
        rig.key(QEvent::KeyPress, Qt::Key_A, 0, true); // repeats of a held key add nothing
        rig.clock.advance(180);
        rig.key(QEvent::KeyRelease, Qt::Key_A);
        rig.clock.advance(300);
        rig.key(QEvent::KeyPress, Qt::Key_F13); // no code: nothing, and no gap taken
        rig.mouse(QEvent::MouseButtonPress, Qt::LeftButton);
        rig.clock.advance(40);
        rig.mouse(QEvent::MouseButtonRelease, Qt::LeftButton);
        rig.clock.advance(70000);               // gaps are cut to 16 bits
        rig.key(QEvent::KeyPress, Qt::Key_Tab); // Tab is recorded, the focus stays
        rig.clock.advance(10);
        rig.mouse(QEvent::MouseButtonPress, Qt::BackButton); // not a button macros know
        rig.key(QEvent::KeyRelease, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), rig.page.get());
        QCOMPARE(rig.sizeText(), QStringLiteral("占用: 20 / 256 字节")); // counted as it goes
        rig.stopRecording();

        // Each delay holds the gap that followed its action; the last keeps 50.
        const QString expected = QStringLiteral("K+4:300 K-4:300 M+F0:40 M-F0:4464 K+2B:10 "
                                                "K-2B:50");
        QCOMPARE(describeSquares(), expected);
        QCOMPARE(describeFile(rig.file()), expected);
        QCOMPARE(rig.square(0)->text(), QStringLiteral("A"));
        QCOMPARE(rig.square(4)->shownText(), QStringLiteral("左键"));
        QCOMPARE(rig.square(3)->shownText(), QStringLiteral("300\nms"));

        const QByteArray packed = ModuleMacroManager::PackMacro(rig.page->current());
        QCOMPARE(packed.toHex(' '),
                 QByteArray("04 80 2c 01 04 00 2c 01 f0 a8 f0 00 70 11 2b 8a 2b 32"));
        QCOMPARE(rig.sizeText(), QStringLiteral("占用: 20 / 256 字节"));
    }

    // Key events from X11 or Wayland carry the key code; without one, Qt's key decides.
    void keyCodes_data()
    {
        QTest::addColumn<int>("qtKey");
        QTest::addColumn<int>("native");
        QTest::addColumn<bool>("keypad");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");

        QTest::newRow("evdev A") << 0 << 30 + 8 << false << 0x04 << "A";
        QTest::newRow("evdev Num Lock, extended") << 0 << 69 + 8 << false << 0x53 << "Num-Lock";
        QTest::newRow("evdev Pause, plain 45") << 0 << 119 + 8 << false << 0x48 << "Pause-Break";
        QTest::newRow("evdev keypad Enter") << 0 << 96 + 8 << false << 0x58 << "Num-Enter";
        QTest::newRow("evdev keypad 7") << 0 << 71 + 8 << false << 0x5F << "Num-7";
        QTest::newRow("evdev right Alt") << 0 << 100 + 8 << false << 0xE6 << "R-Alt";
        QTest::newRow("evdev left Win") << 0 << 125 + 8 << false << 0xE3 << "L-Win";
        QTest::newRow("evdev 1, cut at the blank") << 0 << 2 + 8 << false << 0x1E << "1 ";
        QTest::newRow("evdev Print Screen: none") << 0 << 99 + 8 << false << 0 << "";
        QTest::newRow("evdev unknown") << 0 << 240 + 8 << false << 0 << "";
        QTest::newRow("Qt shifted 1") << int(Qt::Key_Exclam) << 0 << false << 0x1E << "1 ";
        QTest::newRow("Qt Home") << int(Qt::Key_Home) << 0 << false << 0x4A << "Home";
        QTest::newRow("Qt keypad Home") << int(Qt::Key_Home) << 0 << true << 0x5F << "Num-7";
        QTest::newRow("Qt keypad minus") << int(Qt::Key_Minus) << 0 << true << 0x56 << "Num--";
        QTest::newRow("Qt Enter off keypad")
            << int(Qt::Key_Enter) << 0 << false << 0x58 << "Num-Enter";
        QTest::newRow("Qt Super") << int(Qt::Key_Super_L) << 0 << false << 0xE3 << "L-Win";
    }
    void keyCodes()
    {
        QFETCH(int, qtKey);
        QFETCH(int, native);
        QFETCH(bool, keypad);
        QFETCH(int, code);
        QFETCH(QString, text);

        PageRig rig;
        rig.startRecording();
        QKeyEvent event(QEvent::KeyPress, qtKey, keypad ? Qt::KeypadModifier : Qt::NoModifier,
                        quint32(native), 0, 0);
        QApplication::sendEvent(rig.page.get(), &event);
        rig.stopRecording();
        if (code == 0) {
            QVERIFY(FrameMacro::squares().isEmpty());
            return;
        }
        QCOMPARE(FrameMacro::squares().size(), 2);
        QCOMPARE(int(rig.square(0)->value()), code);
        QCOMPARE(rig.square(0)->text(), text);
    }

    void doubleClickSwallowsWhatTrails()
    {
        PageRig rig;
        rig.startRecording();
        rig.mouse(QEvent::MouseButtonPress, Qt::RightButton);
        rig.clock.advance(30);
        rig.mouse(QEvent::MouseButtonRelease, Qt::RightButton);
        rig.clock.advance(60);
        rig.mouse(QEvent::MouseButtonDblClick, Qt::RightButton);
        rig.clock.advance(20);
        rig.mouse(QEvent::MouseButtonRelease, Qt::RightButton); // trails the double click
        rig.clock.advance(150);
        rig.mouse(QEvent::MouseButtonPress, Qt::LeftButton); // within 200 ms: swallowed
        rig.key(QEvent::KeyPress, Qt::Key_B);                // so is a key
        QCOMPARE(FrameMacro::squares().size(), 12);
        rig.clock.advance(40);
        rig.mouse(QEvent::MouseButtonRelease, Qt::LeftButton);
        // The file is written as the recording ends, here by leaving the page.
        QVERIFY(!QFile::exists(rig.file()));
        rig.page->hide();
        QVERIFY(!rig.page->isRecording());

        // The swallowed events still restart the gap, as each event does.
        QCOMPARE(describeSquares(), QStringLiteral("M+F1:30 M-F1:60 M+F1:50 M-F1:50 M+F1:50 "
                                                   "M-F1:40 M-F0:50"));
        QCOMPARE(describeFile(rig.file()), describeSquares());
    }

    void insertAndDeleteKeepPairs()
    {
        PageRig rig;
        recordPairs(rig, 2, 60);
        QCOMPARE(describeSquares(), QStringLiteral("K+4:60 K-4:50"));

        // A key caught by the dialog, at the end.
        rig.insertWith([](ModuleAddMacroSquare* dialog) {
            dialog->findChild<QRadioButton*>("radioButtonKey")->click();
            QTest::keyClick(dialog->findChild<QLineEdit*>("lineEditKey"), Qt::Key_B);
            QCOMPARE(dialog->findChild<QLineEdit*>("lineEditKey")->text(), QStringLiteral("B"));
        });
        // Two mouse buttons, in front of the A release, through its pop-up button.
        QTest::mouseClick(rig.square(2), Qt::LeftButton);
        auto* insertHere = rig.square(2)->findChild<QPushButton*>("pushButtonInsertHere");
        QVERIFY(insertHere->isVisible());
        insertHere->click();
        auto* dialog = rig.page->findChild<ModuleAddMacroSquare*>();
        QVERIFY(dialog->isVisible());
        dialog->findChild<QRadioButton*>("radioButtonMouse")->click();
        dialog->findChild<QCheckBox*>("checkBox1")->setChecked(true);
        dialog->findChild<QCheckBox*>("checkBox3")->setChecked(true);
        QTest::mouseClick(dialog->findChild<QPushButton*>("pushButtonOK"), Qt::LeftButton);
        // A position, X 3 and Y 5, at the end.
        rig.insertWith([](ModuleAddMacroSquare* dialog) {
            dialog->findChild<QCheckBox*>("checkBox1")->setChecked(false);
            dialog->findChild<QCheckBox*>("checkBox3")->setChecked(false);
            dialog->findChild<QRadioButton*>("radioButtonPos")->click();
            dialog->findChild<QSpinBox*>("spinBoxX")->setValue(3);
            dialog->findChild<QSpinBox*>("spinBoxY")->setValue(5);
        });
        // Cancelled, and a key with no code: nothing.
        rig.click("pushButtonInsert");
        QTest::mouseClick(dialog->findChild<QPushButton*>("pushButtonCancel"), Qt::LeftButton);
        rig.insertWith([](ModuleAddMacroSquare* dialog) {
            dialog->findChild<QRadioButton*>("radioButtonKey")->click();
            QTest::keyClick(dialog->findChild<QLineEdit*>("lineEditKey"), Qt::Key_F20);
        });

        const QString inserted = QStringLiteral("K+4:60 M+F0:50 M-F0:50 M+F1:50 M-F1:50 K-4:50 "
                                                "K+5:50 K-5:50 P305:50");
        QCOMPARE(describeSquares(), inserted);
        QCOMPARE(describeFile(rig.file()), inserted);
        // Shown with its low byte as X: the numbers trade places.
        QCOMPARE(rig.square(16)->shownText(), QStringLiteral("X: 5\nY: 3"));

        // Selected actions go with their delays; a selected delay alone removes nothing.
        for (int index : {2, 8, 11})
            QTest::mouseClick(rig.square(index), Qt::LeftButton);
        QVERIFY(rig.square(11)->isSelected());
        QVERIFY(!rig.square(11)->findChild<QPushButton*>("pushButtonDeleteThis")->isVisible());
        rig.click("pushButtonDelete");
        const QString left = QStringLiteral("K+4:60 M-F0:50 M+F1:50 K-4:50 K+5:50 K-5:50 P305:50");
        QCOMPARE(describeSquares(), left);
        QCOMPARE(describeFile(rig.file()), left);

        // The pop-up delete of one action.
        QTest::mouseClick(rig.square(6), Qt::LeftButton);
        rig.square(6)->findChild<QPushButton*>("pushButtonDeleteThis")->click();
        QCOMPARE(describeFile(rig.file()), QStringLiteral("K+4:60 M-F0:50 M+F1:50 K+5:50 K-5:50 "
                                                          "P305:50"));
        // Clear empties the macro and its file.
        rig.click("pushButtonClear");
        QVERIFY(FrameMacro::squares().isEmpty());
        QCOMPARE(describeFile(rig.file()), QString());
        QCOMPARE(rig.sizeText(), QStringLiteral("占用: 0 / 256 字节"));
    }

    void delays()
    {
        PageRig rig;
        recordPairs(rig, 4, 20);
        rig.insertWith([](ModuleAddMacroSquare* dialog) {
            dialog->findChild<QRadioButton*>("radioButtonPos")->click();
            dialog->findChild<QSpinBox*>("spinBoxX")->setValue(10);
            dialog->findChild<QSpinBox*>("spinBoxY")->setValue(20);
        });

        // One fixed delay for all: every key record takes the long form.
        rig.find<QSpinBox>("spinBoxDelay")->setValue(300);
        rig.click("pushButtonSetDelay");
        const QString fixed = QStringLiteral("K+4:300 K-4:300 K+4:300 K-4:300 PA14:300");
        QCOMPARE(describeFile(rig.file()), fixed);
        QCOMPARE(ModuleMacroManager::PackMacro(rig.page->current()).toHex(' '),
                 QByteArray("04 80 2c 01 04 00 2c 01 04 80 2c 01 04 00 2c 01 00 00"));
        QCOMPARE(rig.sizeText(), QStringLiteral("占用: 20 / 256 字节"));

        // One delay by hand: a click opens its spin box, Enter keeps the value.
        MacroSquare* delay = rig.square(1);
        QTest::mouseClick(delay->findChild<QLabel*>("labelText"), Qt::LeftButton);
        auto* spin = delay->findChild<QSpinBox*>("spinBoxValue");
        QVERIFY(spin->isVisible());
        QVERIFY(!delay->findChild<QPushButton*>("pushButtonInsertHere")->isVisible());
        spin->selectAll();
        QTest::keyClicks(spin, "7");
        QTest::keyClick(spin, Qt::Key_Return);
        QVERIFY(!spin->isVisible());
        QCOMPARE(int(delay->value()), 7);
        QCOMPARE(describeFile(rig.file()).left(15), QStringLiteral("K+4:7 K-4:300 K"));

        // A position by hand: the spins start from the numbers shown, so an unchanged edit
        // trades X and Y once more.
        MacroSquare* position = rig.square(8);
        QCOMPARE(position->shownText(), QStringLiteral("X: 20\nY: 10"));
        QTest::mouseClick(position->findChild<QLabel*>("labelText"), Qt::LeftButton);
        QCOMPARE(position->findChild<QSpinBox*>("spinBoxValue")->value(), 20);
        QTest::keyClick(position->findChild<QSpinBox*>("spinBoxValue"), Qt::Key_Enter);
        QCOMPARE(int(position->value()), 20 * 256 + 10);
        QVERIFY(describeFile(rig.file()).endsWith(QStringLiteral("P140A:300")));
    }

    // Records are 2, 4 or 6 bytes, so a stream is always even: 54 fills the keyboard's first
    // page with the repeat count, 56 spills into a second. The store's copy reaches the
    // keyboard as it is.
    void sizeAgainstPages_data()
    {
        QTest::addColumn<int>("actions");
        QTest::addColumn<QString>("size");
        QTest::addColumn<int>("pages");

        QTest::newRow("empty") << 0 << "0" << 1;
        QTest::newRow("one press") << 1 << "4" << 1;
        QTest::newRow("54 bytes") << 27 << "56" << 1;
        QTest::newRow("56 bytes") << 28 << "58" << 2;
    }
    void sizeAgainstPages()
    {
        QFETCH(int, actions);
        QFETCH(QString, size);
        QFETCH(int, pages);

        PageRig rig;
        if (actions) recordPairs(rig, actions, 5);
        QCOMPARE(rig.sizeText(), QStringLiteral("占用: %1 / 256 字节").arg(size));

        SimRig sim;
        const Macro* macro = rig.store->FindMacro(0);
        const QByteArray packed = ModuleMacroManager::PackMacro(macro);
        sim.conn->DoSetMacro(0x29, 3, 0, macro->id, packed);
        QVERIFY(sim.settle());
        QCOMPARE(int(sim.fw().macro(macro->id).size()), pages * MacroBlob::kPageSize);
        QCOMPARE(sim.fw().macro(macro->id), MacroBlob::build(3, packed));
    }

    void macroList()
    {
        PageRig rig;
        QSignalSpy listSaved(rig.store.get(), &ModuleMacroManager::listSaved);
        QCOMPARE(rig.page->items().size(), ModuleMacroManager::kFirstStartMacros);
        QCOMPARE(rig.page->current(), rig.store->FindMacro(0));
        QVERIFY(rig.page->items().first()->isSelected());

        // A new macro is listed and saved in the header, the open one stays open.
        rig.click("pushButtonAddMacro");
        QCOMPARE(rig.page->items().size(), 9);
        QCOMPARE(rig.page->items().last()->text(), QStringLiteral("新建宏8"));
        QCOMPARE(listSaved.size(), 1);
        QVERIFY(readFile(rig.store->headerPath()).contains("新建宏8"));
        QCOMPARE(rig.page->current(), rig.store->FindMacro(0));

        // Renamed in the row (which the click opens): the header has the new name and the
        // picker is told.
        MacroItem* row = rig.page->items().at(2);
        auto* edit = row->findChild<QLineEdit*>("lineEditName");
        QTest::mouseClick(edit, Qt::LeftButton);
        QTest::mouseDClick(edit, Qt::LeftButton);
        QVERIFY(!edit->isReadOnly());
        QCOMPARE(rig.page->current(), rig.store->FindMacro(2));
        edit->selectAll();
        QInputMethodEvent typed; // Chinese comes from the input method
        typed.setCommitString(QStringLiteral("连招"));
        QApplication::sendEvent(edit, &typed);
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(edit->isReadOnly());
        QCOMPARE(rig.store->FindMacro(2)->name, QStringLiteral("连招"));
        QCOMPARE(listSaved.size(), 2);
        QVERIFY(readFile(rig.store->headerPath()).contains("连招"));
        QCOMPARE(rig.find<QLabel>("labelMacroName")->text(), QStringLiteral("连招"));
        // Recorded, the macro is offered by its name in the key page's picker, which is made
        // for each key clicked.
        const ModuleGenKeymapping keys;
        const auto offered = [&] {
            DialogFNPicker picker(keys, *rig.store);
            return picker.findChild<QPushButton*>("pushButton_Micro02")->text();
        };
        QCOMPARE(offered(), QStringLiteral("宏3")); // nothing recorded yet
        recordPairs(rig, 2, 10);
        QCOMPARE(rig.page->current(), rig.store->FindMacro(2));
        QCOMPARE(offered(), QStringLiteral("连招"));
        // An emptied name keeps the old one and saves nothing.
        row->beginRename();
        edit->clear();
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(edit->text(), QStringLiteral("连招"));
        QCOMPARE(listSaved.size(), 2);

        // Selecting while recording ends the recording into the macro it was for.
        QTest::mouseClick(rig.page->items().at(0), Qt::LeftButton);
        QCOMPARE(rig.page->current(), rig.store->FindMacro(0));
        rig.startRecording();
        rig.key(QEvent::KeyPress, Qt::Key_Z);
        QTest::mouseClick(edit, Qt::LeftButton);
        QVERIFY(!rig.page->isRecording());
        QCOMPARE(rig.page->current(), rig.store->FindMacro(2));
        QCOMPARE(describeFile(rig.file(0)), QStringLiteral("K+1D:50"));

        // Deleting the open macro closes the grid; its file stays, the header loses it.
        rig.page->items().at(2)->findChild<QPushButton*>("pushButtonDel")->click();
        QVERIFY(rig.page->current() == nullptr);
        QVERIFY(!rig.find<QPushButton>("pushButtonRecord")->isEnabled());
        QVERIFY(!readFile(rig.store->headerPath()).contains("连招"));
        QCOMPARE(rig.page->items().size(), 8);

        // With none open, a new macro opens; it takes the lowest free id.
        rig.click("pushButtonAddMacro");
        QCOMPARE(rig.page->current(), rig.store->FindMacro(2));
        QVERIFY(rig.page->items().last()->isSelected());
        // A full store gives no row.
        while (rig.store->macros().size() < ModuleMacroManager::kMaxMacros)
            rig.click("pushButtonAddMacro");
        rig.click("pushButtonAddMacro");
        QCOMPARE(rig.page->items().size(), ModuleMacroManager::kMaxMacros);
    }

    // A file that can't be read shows as an empty macro and stays on disk, untouched, until
    // the user changes that macro.
    void brokenEventFile_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("warning");

        QTest::newRow("cut short")
            << QByteArray("{\"data\": [{\"type\": 0, \"val") << "broken file";
        QTest::newRow("data not a list") << QByteArray("{\"data\": 7}") << "unexpected content";
    }
    void brokenEventFile()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, warning);

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^" + warning));
        PageRig rig([&](const QString& folder) {
            ModuleMacroManager{QFileInfo(folder).path()}; // a first start: the header
            writeFile(folder + "/macroevent0.txt", content);
        });
        QVERIFY(FrameMacro::squares().isEmpty());
        QCOMPARE(rig.sizeText(), QStringLiteral("占用: 0 / 256 字节"));

        QTest::mouseClick(rig.page->items().at(1), Qt::LeftButton);
        QTest::mouseClick(rig.page->items().at(0), Qt::LeftButton);
        QCOMPARE(readFile(rig.file()), content);

        recordPairs(rig, 1, 10);
        QCOMPARE(describeFile(rig.file()), QStringLiteral("K+4:50"));
    }

    // An event file that can't be written: the page goes on, the failure is logged.
    void unwritableEventFile()
    {
        PageRig rig([](const QString& folder) { QDir().mkpath(folder + "/macroevent0.txt"); });
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^cannot write"));
        QTest::failOnWarning(QRegularExpression("^orbe"));
        recordPairs(rig, 1, 10);
        QCOMPARE(describeSquares(), QStringLiteral("K+4:50"));
        QVERIFY(QFileInfo(rig.file()).isDir());
    }

    // The device page's shell gives its macro page the window's store.
    void shellPassesTheStore()
    {
        QTemporaryDir dir;
        ManualClock clock;
        VirtualHidBackend hid(&clock);
        ModuleMacroManager store(dir.path());
        store.FindMacro(1)->name = QStringLiteral("宏 B");
        ModuleGenKeymapping keys;
        DialogDeviceConnect conn(&hid, &clock, keys, dir.filePath("device.ini"),
                                 std::make_unique<InlineHidExecutor>());
        FrameDeviceHolder holder(&conn, keys, store, dir.filePath("work"), &clock);
        auto* page = qobject_cast<FrameMacro*>(holder.page(3));
        QVERIFY(page);
        QCOMPARE(page->items().size(), ModuleMacroManager::kFirstStartMacros);
        QCOMPARE(page->items().at(1)->text(), QStringLiteral("宏 B"));
        QCOMPARE(page->current(), store.FindMacro(0));
    }

    // Real time, once: the gaps come from the clock on the wall, and the quiet after a double
    // click ends by itself.
    void realTimeRecording()
    {
        QTemporaryDir dir;
        ModuleMacroManager store(dir.path());
        FrameMacro page(store);
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        QTest::mouseClick(page.findChild<QPushButton*>("pushButtonRecord"), Qt::LeftButton);
        QTest::keyPress(&page, Qt::Key_S);
        QTest::qWait(120);
        QTest::keyRelease(&page, Qt::Key_S);
        QTest::mouseDClick(&page, Qt::LeftButton);
        QTest::qWait(FrameMacro::kDoubleClickQuietMs + 50);
        QTest::mouseClick(&page, Qt::MiddleButton);
        QTest::mouseClick(page.findChild<QPushButton*>("pushButtonRecord"), Qt::LeftButton);

        const QList<MacroSquare*>& squares = FrameMacro::squares();
        QVERIFY(squares.size() >= 4);
        QCOMPARE(int(squares[0]->value()), 0x16);
        QVERIFY2(squares[1]->value() >= 120, qPrintable(describeSquares()));
        const MacroSquare* last = squares[squares.size() - 2];
        QCOMPARE(int(last->value()), int(MacroEvent::kMouseMiddle));
        QVERIFY(!last->down());
        QCOMPARE(describeFile(store.eventPath(0)), describeSquares());
    }
};

QTEST_MAIN(TestMacroPage)
#include "tst_macropage.moc"
