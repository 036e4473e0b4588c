#include "DefaultKeyMaps.h"
#include "KeyEntry.h"
#include "KeyNameTable.h"
#include "KeyPositions.h"
#include "ModuleGenKeymapping.h"

#include <QCryptographicHash>
#include <QTranslator>
#include <QtTest>

Q_DECLARE_METATYPE(KeyEntry)

// Shows an entry as "00 E0 04 00" in a failed comparison.
char* toString(const KeyEntry& entry)
{
    return qstrdup(entry.toByteArray().toHex(' ').toUpper().constData());
}

namespace {

// "00 E0 04 00" -> entry.
KeyEntry entryOf(const char* hex)
{
    return KeyEntry::fromByteArray(QByteArray::fromHex(hex));
}

// One comparison that covers every row of a table: the digest of its rows written out.
QByteArray digest(const QString& rows)
{
    return QCryptographicHash::hash(rows.toUtf8(), QCryptographicHash::Sha1).toHex();
}

QString listText(const QList<KeyFunctionRow>& list)
{
    QString text;
    for (const KeyFunctionRow& row : list)
        text += row.name() + u' ' + QString::fromLatin1(row.entry.toByteArray().toHex()) + u';';
    return text;
}

// Marks every text of the key vocabulary's context, so a test can see which texts were
// translated, and in which context.
class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char* context, const char* sourceText, const char*, int) const override
    {
        if (qstrcmp(context, "ModuleGenKeymapping") != 0) return QString();
        return QLatin1Char('<') + QString::fromUtf8(sourceText) + QLatin1Char('>');
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TestKeyVocabulary : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { SetDefaultKeyMap(DefaultKeyMaps::factoryKeyMap()); }

    void keyEntryBytes()
    {
        const QByteArray matrix = QByteArray::fromHex("0000290000290000");
        const KeyEntry first = KeyEntry::fromByteArray(matrix);
        const KeyEntry second = KeyEntry::fromByteArray(matrix, 4);
        QCOMPARE(first, KeyEntry(0x00, 0x00, 0x29, 0x00));
        QCOMPARE(second, KeyEntry(0x00, 0x29, 0x00, 0x00));
        QVERIFY(first != second); // the same key, other bytes
        QCOMPARE(first.toByteArray(), matrix.left(4));
        QCOMPARE(second.toByteArray(), matrix.mid(4));

        // Bytes beyond the data read as 0.
        QCOMPARE(KeyEntry::fromByteArray(matrix, 6), KeyEntry(0x00, 0x00, 0x00, 0x00));
        QCOMPARE(KeyEntry::fromByteArray(QByteArray::fromHex("0D08")), KeyEntry(0x0D, 0x08, 0, 0));
        QVERIFY(KeyEntry::fromByteArray(QByteArray(), 0).isEmpty());
    }

    void keyEntryText_data()
    {
        QTest::addColumn<KeyEntry>("entry");
        QTest::addColumn<bool>("prefix");
        QTest::addColumn<QString>("text");

        QTest::newRow("no function") << entryOf("00000000") << true << QString();
        QTest::newRow("factory plain key") << entryOf("00002C00") << true << QString();
        QTest::newRow("single key") << entryOf("002C0000") << true << "组合: Space";
        QTest::newRow("single key, no prefix") << entryOf("002C0000") << false << "Space";
        QTest::newRow("two keys") << entryOf("00E00400") << true << "组合: L-Ctrl + A";
        QTest::newRow("unnamed middle key skipped")
            << entryOf("00E0FA04") << true << "组合: L-Ctrl + A";
        QTest::newRow("empty first key") << entryOf("0000E304") << true << QString();
        QTest::newRow("kind not looked at") << entryOf("0D290000") << true << "组合: Esc";

        QTest::newRow("function list first") << entryOf("00E02C00") << true << "功能: 切换输入法";
        QTest::newRow("function, prefix ignored")
            << entryOf("00E02C00") << false << "功能: 切换输入法";
        QTest::newRow("shared entry shows first row")
            << entryOf("03002402") << true << "功能: 后退";
        QTest::newRow("fixed combination row") << entryOf("0000E32E") << true << "功能: 放大";
        QTest::newRow("factory Insert is a function")
            << entryOf("00004900") << true << "功能: Insert键";

        QTest::newRow("mouse") << entryOf("0100F000") << true << "鼠标: 左键单击";
        QTest::newRow("mouse, negative amount") << entryOf("0100F5FF") << false << "鼠标: 向下滚屏";

        QTest::newRow("macro") << entryOf("09010500") << true << "宏设置";
    }
    void keyEntryText()
    {
        QFETCH(KeyEntry, entry);
        QFETCH(bool, prefix);
        QFETCH(QString, text);
        QCOMPARE(ModuleGenKeymapping().KeyEntryText(entry, prefix), text);
    }
    void keyEntryTextFollowsLaterTranslation()
    {
        const ModuleGenKeymapping keymapping;
        QCOMPARE(keymapping.KeyEntryText(entryOf("03002402"), true), "功能: 后退"); // built first

        MarkingTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        const QString function = keymapping.KeyEntryText(entryOf("03002402"), true);
        const QString mouse = keymapping.KeyEntryText(entryOf("0100F100"), true);
        const QString combination = keymapping.KeyEntryText(entryOf("00E00400"), true);
        const QString macro = keymapping.KeyEntryText(entryOf("09000100"), true);
        const QString rowName = keymapping.FunctionEntryAt(0)->name();
        QCoreApplication::removeTranslator(&translator);

        QCOMPARE(function, "<功能>: <后退>");
        QCOMPARE(mouse, "<鼠标>: <右键单击>");
        QCOMPARE(combination, "<组合>: L-Ctrl + A"); // key names are not translated
        QCOMPARE(macro, "<宏设置>");
        QCOMPARE(rowName, "<上一曲>");
    }

    void keyNameByCode_data()
    {
        QTest::addColumn<int>("usage");
        QTest::addColumn<QString>("name");

        QTest::newRow("Esc") << 0x29 << "Esc";
        QTest::newRow("left backslash") << 0x64 << "L-\\";
        QTest::newRow("right backslash") << 0x87 << "R-\\";
        QTest::newRow("yen") << 0x89 << "_¥";
        QTest::newRow("Home, not Num-Home") << 0x4A << "Home";
        QTest::newRow("left arrow, not Num-left") << 0x50 << "←";
        QTest::newRow("Pgdn, not Num-Pgdn") << 0x4E << "Pgdn";
        QTest::newRow("volume up") << 0xEA << "VOL+";
        QTest::newRow("usage 0") << 0x00 << QString();
        QTest::newRow("Fn code") << 0xFA << QString();
        QTest::newRow("not in table") << 0x68 << QString();
        QTest::newRow("beyond a byte") << 0x129 << QString();
    }
    void keyNameByCode()
    {
        QFETCH(int, usage);
        QFETCH(QString, name);
        QCOMPARE(KeyNameByCode(quint16(usage)), name);
    }
    void keyNameByScan_data()
    {
        QTest::addColumn<int>("scan");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("usage");

        QTest::newRow("Esc") << 0x01 << "Esc" << 0x29;
        QTest::newRow("Num-7, not Num-Home") << 0x47 << "Num-7" << 0x5F;
        QTest::newRow("Num-4, not Num-left") << 0x4B << "Num-4" << 0x5C;
        QTest::newRow("Num-0, not Num-Pgdn") << 0x52 << "Num-0" << 0x62;
        QTest::newRow("backslash, not R-backslash") << 0x2B << "\\ |" << 0x31;
        QTest::newRow("L-backslash, not slash") << 0x35 << "L-\\" << 0x64;
        QTest::newRow("R-Win, not Print-Screen") << 0xE05C << "R-Win" << 0xE7;
        QTest::newRow("extended") << 0xE01C << "Num-Enter" << 0x58;
        QTest::newRow("scan 0 is the yen row") << 0x00 << "_¥" << 0x89;
        QTest::newRow("extended prefix alone") << 0xE0 << QString() << 0;
        QTest::newRow("not in table") << 0x59 << QString() << 0;
    }
    void keyNameByScan()
    {
        QFETCH(int, scan);
        QFETCH(QString, name);
        QFETCH(int, usage);
        QCOMPARE(KeyNameByScan(quint16(scan)), name);
        QCOMPARE(int(CodeByScan(quint16(scan))), usage);
    }
    // Every row of the fixed tables at once, as digests of the rows written out: a deliberate
    // change to a table changes its digest here. The rows that carry a rule have cases of their
    // own.
    void wholeTables()
    {
        QString names;
        for (const KeyNameRow& row : KeyNameTable)
            names += QStringLiteral("%1 %2/%3;")
                         .arg(QString::fromUtf8(row.name))
                         .arg(row.usage, 0, 16)
                         .arg(row.scan, 0, 16);
        QCOMPARE(int(std::size(KeyNameTable)), 118);
        QCOMPARE(digest(names), "f622680940e5e24435bcfeb453412857a55c1b70");

        const ModuleGenKeymapping keymapping;
        QCOMPARE(keymapping.FunctionKeyList().size(), 98);
        QCOMPARE(digest(listText(keymapping.FunctionKeyList())),
                 "19200ff4b3376b52304afe726c07aa36bd79a48b");
        QCOMPARE(keymapping.MouseKeyList().size(), 15);
        QCOMPARE(digest(listText(keymapping.MouseKeyList())),
                 "f3bac45ff7cf745033433dde7977a010752746f2");
        QVERIFY(!keymapping.FunctionEntryAt(98).has_value());
        QVERIFY(!keymapping.MouseEntryAt(15).has_value());
        QVERIFY(!keymapping.MouseEntryAt(255).has_value());

        const QByteArray keys = DefaultKeyMaps::factoryKeyMap();
        QCOMPARE(keys.size(), 512);
        QCOMPARE(digest(QString::fromLatin1(keys.toHex())),
                 "a57843bd73a50d655a2cee49c7dfe688962b02cc");
        // Every code of the factory matrix leads back to its own position.
        for (int position = 0; position < 128; ++position) {
            const quint8 code = CodeOfPosition(quint8(position));
            if (code != 0) QCOMPARE(int(PositionOfCode(code)), position);
        }
    }
    void listRows_data()
    {
        QTest::addColumn<bool>("mouse");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("name");
        QTest::addColumn<KeyEntry>("entry");

        QTest::newRow("function 0") << false << 0 << "上一曲" << entryOf("0300B600");
        QTest::newRow("function 13") << false << 13 << "后退" << entryOf("03002402");
        QTest::newRow("function 24") << false << 24 << "返回" << entryOf("03002402");
        QTest::newRow("mouse 0") << true << 0 << "左键单击" << entryOf("0100F000");
        QTest::newRow("mouse 14") << true << 14 << "YDOWN" << entryOf("0100F705");
    }
    void listRows()
    {
        QFETCH(bool, mouse);
        QFETCH(int, row);
        QFETCH(QString, name);
        QFETCH(KeyEntry, entry);

        const ModuleGenKeymapping keymapping;
        const QList<KeyFunctionRow>& list =
            mouse ? keymapping.MouseKeyList() : keymapping.FunctionKeyList();
        QCOMPARE(list.size(), mouse ? 15 : 98);
        const std::optional<KeyFunctionRow> found =
            mouse ? keymapping.MouseEntryAt(quint8(row)) : keymapping.FunctionEntryAt(quint8(row));
        QVERIFY(found.has_value());
        QCOMPARE(found->name(), name);
        QCOMPARE(found->entry, entry);
        QCOMPARE(list.at(row).entry, entry);
    }

    void codeOfPosition_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("code");

        QTest::newRow("Esc") << 0 << 0x29;
        QTest::newRow("first hole") << 10 << 0x00;
        QTest::newRow("Fn") << 65 << 0xFA;
        QTest::newRow("volume down") << 90 << 0xEA;
        QTest::newRow("volume up") << 91 << 0xE9;
        QTest::newRow("position 92") << 92 << 0xFB;
        QTest::newRow("empty 95") << 95 << 0x00;
        QTest::newRow("brightness down") << 96 << 0xFC;
        QTest::newRow("brightness up") << 97 << 0xFD;
        QTest::newRow("128") << 128 << 0x00;
        QTest::newRow("255") << 255 << 0x00;
    }
    void codeOfPosition()
    {
        QFETCH(int, position);
        QFETCH(int, code);
        QCOMPARE(int(CodeOfPosition(quint8(position))), code);
    }
    void positionOfCode_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("position");

        QTest::newRow("Esc") << 0x29 << 0;
        QTest::newRow("code 0 is the first hole") << 0x00 << 10;
        QTest::newRow("unknown") << 0x68 << 0xFF;
        QTest::newRow("FF") << 0xFF << 0xFF;
    }
    void positionOfCode()
    {
        QFETCH(int, code);
        QFETCH(int, position);
        QCOMPARE(int(PositionOfCode(quint8(code))), position);
    }
    void mappingFollowsSetDefaultKeyMap()
    {
        // Swap Esc and A, as the console's "Save Matrix" could.
        QByteArray map = DefaultKeyMaps::factoryKeyMap();
        map.replace(0, 4, QByteArray::fromHex("00000400"));
        map.replace(9 * 4, 4, QByteArray::fromHex("00002900"));
        SetDefaultKeyMap(map);

        QCOMPARE(DefaultKeyMap(), map);
        QCOMPARE(int(CodeOfPosition(0)), 0x04);
        QCOMPARE(int(CodeOfPosition(9)), 0x29);
        QCOMPARE(int(PositionOfCode(0x04)), 0);
        QCOMPARE(int(PositionOfCode(0x29)), 9);
        QCOMPARE(DefaultEntryAt(0), entryOf("00000400"));
        QVERIFY(IsModifiedEntry(0, entryOf("00002900")));
        QVERIFY(!IsModifiedEntry(0, entryOf("00000400")));
        QCOMPARE(int(PositionOfCode(0xFA)), 65); // the own codes don't move

        // A short map is padded with zeros: the keys beyond it have no code.
        SetDefaultKeyMap(QByteArray::fromHex("00002900"));
        QCOMPARE(DefaultKeyMap().size(), 512);
        QCOMPARE(int(PositionOfCode(0x29)), 0);
        QCOMPARE(int(PositionOfCode(0x04)), 0xFF);
        QCOMPARE(int(PositionOfCode(0x00)), 1);
        QCOMPARE(int(CodeOfPosition(90)), 0x00);
    }

    void isModifiedEntry_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<KeyEntry>("entry");
        QTest::addColumn<bool>("modified");

        QTest::newRow("Esc as factory") << 0 << entryOf("00002900") << false;
        QTest::newRow("Esc as picked") << 0 << entryOf("00290000") << true;
        QTest::newRow("empty place") << 10 << entryOf("00000000") << false;
        QTest::newRow("Fn, last byte") << 65 << entryOf("0A010001") << true;
        QTest::newRow("brightness swapped") << 97 << entryOf("0D020200") << true;
        QTest::newRow("past the matrix, zero") << 200 << entryOf("00000000") << false;
        QTest::newRow("past the matrix, a key") << 200 << entryOf("00002900") << true;
    }
    void isModifiedEntry()
    {
        QFETCH(int, position);
        QFETCH(KeyEntry, entry);
        QFETCH(bool, modified);
        QCOMPARE(IsModifiedEntry(quint8(position), entry), modified);
    }

    // The live default matrix's entries; the factory matrix itself is in wholeTables().
    void defaultEntryAt()
    {
        QCOMPARE(DefaultEntryAt(0), entryOf("00002900"));
        QCOMPARE(DefaultEntryAt(65), entryOf("0A010000"));
        QCOMPARE(DefaultEntryAt(90), entryOf("0300EA00"));
        QCOMPARE(DefaultEntryAt(97), entryOf("0D020100"));
        QCOMPARE(DefaultEntryAt(127), KeyEntry());
        QCOMPARE(DefaultEntryAt(200), KeyEntry()); // past the matrix
    }
    void defaultFnMapEntries_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<KeyEntry>("entry");

        QTest::newRow("0") << 0 << KeyEntry();
        QTest::newRow("factory reset") << 1 << entryOf("0A020000");
        QTest::newRow("side light") << 5 << entryOf("0D080000");
        QTest::newRow("my computer") << 6 << entryOf("03009401");
        QTest::newRow("Win lock") << 11 << entryOf("0A030000");
        QTest::newRow("mail") << 12 << entryOf("03008A01");
        QTest::newRow("WASD") << 14 << entryOf("0A0A0000");
        // From 15 on the table stands one byte early against the entry grid, as keyboards ship.
        QTest::newRow("15, one byte early") << 15 << entryOf("0000000D");
        QTest::newRow("16, one byte early") << 16 << entryOf("0801000D");
        for (int position = 93; position < 128; ++position)
            QTest::addRow("%d empty", position) << position << KeyEntry();
    }
    void defaultFnMapEntries()
    {
        QFETCH(int, position);
        QFETCH(KeyEntry, entry);
        const QByteArray map = DefaultKeyMaps::DefaultFnMap();
        QCOMPARE(map.size(), 512);
        QCOMPARE(KeyEntry::fromByteArray(map, position * 4), entry);
    }
};

QTEST_GUILESS_MAIN(TestKeyVocabulary)
#include "tst_keyvocabulary.moc"
