// Hot-plug: the 300 ms debounce and the virtual devices' plug events becoming the backend's
// notice. The road on to a pass on the discovery thread and the cards runs in real time in
// tst_hubwindow.

#include "ManualClock.h"
#include "ScanDebounce.h"
#include "USBNotifier.h" // the Windows message filter
#include "VirtualHidBackend.h"

#include <QSignalSpy>
#include <QTest>
#include <thread>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

class TestHotplug : public QObject
{
    Q_OBJECT

private slots:
    void debounce_data();
    void debounce();
    void virtualPlugEventsBecomeTheBackendsNotice();
#ifdef Q_OS_WIN
    void deviceChangeMessage();
#endif
};

void TestHotplug::debounce_data()
{
    QTest::addColumn<int>("events");
    QTest::addColumn<int>("spacingMs");
    QTest::addColumn<QList<qint64>>("requestsAt");
    QTest::newRow("twenty messages 100 ms apart") << 20 << 100 << QList<qint64>{1900 + 300};
    QTest::newRow("one message") << 1 << 0 << QList<qint64>{300};
    QTest::newRow("just under the quiet time") << 3 << 299 << QList<qint64>{598 + 300};
    QTest::newRow("quiet time between them") << 3 << 300 << QList<qint64>{300, 600, 900};
}

void TestHotplug::debounce()
{
    QFETCH(int, events);
    QFETCH(int, spacingMs);
    QFETCH(QList<qint64>, requestsAt);
    ManualClock clock;
    QList<qint64> requests;
    VirtualHidBackend hid(&clock);
    ScanDebounce debounce(&clock, [&] { requests.append(clock.elapsedMs()); });
    connect(&hid, &HidBackend::devicePluggined, &debounce, &ScanDebounce::onDevicePluggined);

    for (int i = 0; i < events; ++i) {
        if (i > 0) clock.advance(spacingMs);
        hid.reportDeviceChange();
    }
    const qint64 last = clock.elapsedMs();
    clock.advance(requestsAt.last() - last - 1);
    QCOMPARE(requests.size(), requestsAt.size() - 1);
    clock.advance(1);
    QCOMPARE(requests, requestsAt);
    clock.advance(5000);
    QCOMPARE(requests, requestsAt);
    QVERIFY(!debounce.isPending());
}

void TestHotplug::virtualPlugEventsBecomeTheBackendsNotice()
{
    ManualClock clock;
    VirtualHidBackend hid(&clock);
    VirtualKeyboard* kb = hid.addWiredKeyboard();
    QSignalSpy plugged(&hid, &HidBackend::devicePluggined);

    kb->unplug();
    kb->unplug(); // already gone: no second notice
    QCOMPARE(plugged.count(), 1);
    kb->replug();
    QCOMPARE(plugged.count(), 2);
    // From another thread the notice is queued to the backend's.
    std::thread([kb] { kb->unplug(); }).join();
    QCOMPARE(plugged.count(), 2);
    QTRY_COMPARE(plugged.count(), 3);
    for (const QList<QVariant>& args : plugged)
        QCOMPARE(args.at(0).toBool(), true);
}

#ifdef Q_OS_WIN
void TestHotplug::deviceChangeMessage()
{
    USBNotifier notifier;
    QSignalSpy plugged(&notifier, &USBNotifier::devicePluggined);
    MSG msg{};
    msg.message = WM_DEVICECHANGE;
    msg.wParam = 0x0007; // DBT_DEVNODES_CHANGED; any wParam counts
    qintptr result = 0;
    QVERIFY(notifier.nativeEventFilter("windows_generic_MSG", &msg, &result));
    msg.message = WM_PAINT;
    QVERIFY(!notifier.nativeEventFilter("windows_generic_MSG", &msg, &result));
    QCOMPARE(plugged.count(), 1);
}
#endif

QTEST_GUILESS_MAIN(TestHotplug)
#include "tst_hotplug.moc"
