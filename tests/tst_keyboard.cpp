// The on-screen keyboard as the magnetic and lighting pages will drive it (select and value
// modes, a selection limit, the rubber band, colours, values, hit marks), the small picker of
// the advanced keys, and the masker that shows a widget modally over a page.

#include "DialogVKPicker.h"
#include "KeyboardButton.h"
#include "ManualClock.h"
#include "ModuleGeneralMasker.h"
#include "ModuleKeyboard.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr quint8 kEsc = 41;
constexpr quint8 kF1 = 58;
constexpr quint8 kSpace = 44;

QByteArray codes(std::initializer_list<int> list)
{
    QByteArray out;
    for (int c : list)
        out.append(char(c));
    return out;
}

// A keyboard without a connection, past its first 100 ms, shown.
struct Board
{
    ManualClock clock;
    ModuleKeyboard keyboard{nullptr, &clock};
    Board()
    {
        keyboard.show();
        clock.advance(100);
    }
    QByteArray selected() const
    {
        QByteArray out;
        keyboard.selectedCodes(out);
        return out;
    }
};

} // namespace

class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void selectionLimitKeepsTheFirstInGroupOrder()
    {
        Board board;
        board.keyboard.enterSelectMode();
        board.keyboard.setSelectionLimit(3);
        QSignalSpy clicked(&board.keyboard, &ModuleKeyboard::onKeyClicked);
        // F1, Esc and Space checked, then a click checks the grave key too: in group order the
        // grave key comes after Esc and F1, so Space is the one let go.
        for (quint8 code : {kF1, kEsc, kSpace})
            board.keyboard.button(code)->setChecked(true);
        QTest::mouseClick(board.keyboard.button(53), Qt::LeftButton);
        QCOMPARE(board.selected(), codes({kEsc, kF1, 53}));
        QCOMPARE(clicked.size(), 1);
        QCOMPARE(clicked[0][0].toString(), QString("` ~"));
        QCOMPARE(clicked[0][1].value<uchar>(), uchar(53));
    }

    void rubberBandTakesKeysWithACornerInside_data()
    {
        QTest::addColumn<QPoint>("from");
        QTest::addColumn<QPoint>("to");
        QTest::addColumn<QByteArray>("selected");
        QTest::newRow("around Esc") << QPoint(30, 5) << QPoint(95, 64) << codes({kEsc});
        QTest::newRow("Esc and F1, dragged backwards")
            << QPoint(165, 64) << QPoint(30, 5) << codes({kEsc, kF1});
        QTest::newRow("across the middle of Space, no corner")
            << QPoint(300, 295) << QPoint(500, 330) << codes({});
        QTest::newRow("from x 0 nothing moves") << QPoint(0, 5) << QPoint(95, 64) << codes({});
    }
    void rubberBandTakesKeysWithACornerInside()
    {
        QFETCH(QPoint, from);
        QFETCH(QPoint, to);
        QFETCH(QByteArray, selected);
        Board board;
        board.keyboard.enterSelectMode();
        board.keyboard.setSelectionLimit(ModuleKeyboard::kDefaultSelectionLimit);
        QTest::mousePress(&board.keyboard, Qt::LeftButton, {}, from);
        QTest::mouseMove(&board.keyboard, to);
        QTest::mouseRelease(&board.keyboard, Qt::LeftButton, {}, to);
        QCOMPARE(board.selected(), selected);
    }

    void modesShowValuesAndHideTheKnob()
    {
        Board board;
        ModuleKeyboard& k = board.keyboard;
        QVERIFY(k.button(234)->isVisible() && k.button(233)->isVisible());

        k.enterValueMode(KeyboardButton::TwoValues);
        QVERIFY(!k.button(234)->isVisible() && !k.button(233)->isVisible());
        QVERIFY(!k.findChild<QWidget*>("frameFlag")->isVisible());
        QVERIFY(k.button(kEsc)->isCheckable());
        k.setKeyValues2(kEsc, 0.3f, 0.2155f);
        k.setKeyValues2(200, 1.0f, 1.0f); // no such key
        QCOMPARE(k.button(kEsc)->valueTexts().mid(0, 2), (QStringList{"0.30", "0.215"}));
        // A binding is not drawn over values.
        k.setKeyTooltip(kEsc, "Esc", "组合: A", true);
        QVERIFY(!k.button(kEsc)->hasBinding());

        k.setKeyColor(ModuleKeyboard::kAllKeys, QColor(Qt::red));
        for (KeyboardButton* b : k.buttons())
            QVERIFY(b->isFilled());
        // Red and blue change places in the border's colour text, deliberately.
        k.setKeyBorder(kF1, QColor(0x11, 0x22, 0x33));
        QVERIFY(k.button(kF1)->styleSheet().contains("#332211"));

        k.markKeyHit(kF1);
        QVERIFY(k.button(kF1)->styleSheet().contains("#FF9052"));
        k.lockKeyboard();
        QVERIFY(k.button(kEsc)->isEnabled());
        board.clock.advance(10);
        QVERIFY(k.isLocked() && !k.button(kEsc)->isEnabled());
    }

    void smallPickerReturnsACombination()
    {
        QWidget page;
        page.resize(1124, 740);
        DialogVKPicker picker(&page);
        QCOMPARE(picker.size(), page.size());
        QTimer::singleShot(0, &picker, [&] {
            for (const char* name : {"pushButton_Hid226", "pushButton_Hid004"})
                picker.findChild<QPushButton*>(name)->click();
            QTest::mouseClick(picker.slotLabel(0), Qt::LeftButton); // Alt out again
            picker.findChild<QPushButton*>("pushButton_Hid005")->click();
            picker.findChild<QPushButton*>("pushButtonOK")->click();
        });
        QCOMPARE(picker.exec(), int(QDialog::Accepted));
        QCOMPARE(picker.entry(), KeyEntry(0x00, 0x05, 0x04, 0x00));
        QCOMPARE(picker.slotLabel(0)->text(), QString("B"));
        QCOMPARE(picker.slotLabel(2)->text(), QString("--"));
    }

    void maskerEndsWhenItsWidgetHides_data()
    {
        QTest::addColumn<int>("result");
        QTest::addColumn<int>("exec");
        QTest::newRow("result 1 accepts") << 1 << int(QDialog::Accepted);
        QTest::newRow("result 0 rejects") << 0 << int(QDialog::Rejected);
    }
    void maskerEndsWhenItsWidgetHides()
    {
        QFETCH(int, result);
        QFETCH(int, exec);
        QWidget page;
        page.resize(600, 400);
        auto* child = new QLabel("travel");
        ModuleGeneralMasker masker(child, &page);
        QCOMPARE(masker.size(), QSize(598, 398));
        QTimer::singleShot(0, &masker, [&] {
            masker.setResult(result);
            child->hide();
        });
        QCOMPARE(masker.exec(), exec);
        // The widget goes back to its owner loose and hidden.
        QVERIFY(!child->parent());
        QVERIFY(child->isHidden());
        delete child;
    }
};

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
