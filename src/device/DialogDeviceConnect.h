#pragma once

#include "ConsoleRows.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <array>
#include <initializer_list>
#include <memory>

class Clock;
class ClockTimer;
class HidBackend;
class HidHandle;
class QSettings;

// The live link to one native keyboard: its HID handles, the send queue and its pump, the
// reply dispatch and the cache of everything read from the keyboard. One instance serves the
// whole program (instance()). Pages call the Do* operations, which queue commands and update
// the cache at once, and the Get* operations, which read the cache.
//
// The engineering console is a view on this object: the console rows, the id texts, the command
// line, the lamps and the version label live here as plain state, and the console's buttons
// call connectStep(), readStep(), writeCommandLine() and refreshStep().
class DialogDeviceConnect : public QObject
{
    Q_OBJECT

public:
    static constexpr int kKeySlots = 8;
    static constexpr int kMagnetTables = 15;
    static constexpr int kLedSlots = 100;
    static constexpr int kSideLedSlots = 20;
    static constexpr int kPollIntervalMs = 20;
    static constexpr int kDeferredKickMs = 5;
    static constexpr int kWiredReadDelayMs = 20;
    static constexpr int kWirelessReadDelayMs = 100;
    static constexpr int kPumpAfterReplyMs = 10;
    static constexpr int kProfileReadDelayMs = 500;
    static constexpr int kReadDoneDelayMs = 50;
    static constexpr int kHotplugQuietMs = 800;
    static constexpr int kCalibrationTickMs = 120;

    // settingsPath is the device.ini file; empty means the application directory's
    // "/config/device.ini".
    DialogDeviceConnect(HidBackend* hid, Clock* clock, const QString& settingsPath = QString(),
                        QObject* parent = nullptr);
    ~DialogDeviceConnect() override;

    // The program's one connection, or null before it was made.
    static DialogDeviceConnect* instance();

    // ---- Connection and queue
    void DoConnectDevice(quint16 vid, quint16 pid, bool isWireless, const QString& idText,
                         const QString& path);
    void DoSendCommand(quint8 command, int length, bool immediate);
    void DoSendHex(const QString& text, bool immediate);

    // ---- Read sequence and cache
    void DoReadAll();
    void DoFactoryReset();
    void DoSetProfile(quint8 layer);
    // Four bytes of the key matrix at a position; a layer 0xF0 + n reads Fn slot n instead.
    // Bytes the cache doesn't hold read as 0.
    void GetKeyEntry(quint8 out[4], quint8 keyIndex, quint8 layer) const;

    // ---- Settings and lighting
    void DoSetReportRate(quint8 value);
    void DoSetDebounce(quint8 value);
    void DoSetLedOnOff(bool off);
    void DoSetLedEffect(int effect, quint8 option);
    void DoSetLedSpeed(quint8 speed);
    void DoSetLedBrightness(int brightness);
    // rgb as 0xRRGGBB (QColor::rgb() fits); the colour goes out only with an option above 6.
    void DoSetLedColor(quint32 rgb, int option);
    void DoSetSideLed(const QByteArray& data);
    void DoSetKbOption(int index, quint8 value);
    quint8 GetKbOption(int index) const;
    void DoSetSleepTime(int minutes, int slot);

    // ---- Key matrix and Fn layer
    void DoSetKey(quint8 keyCode, const quint8 entry[4], quint8 layer, quint8 last);
    void DoSetFn(quint8 keyCode, const quint8 entry[4]);
    void DoSetKeyCode(quint8 keyCode, bool enabled, quint8 layer);
    void DoSetFnCode(quint8 keyCode, bool enabled);
    void DoResetKey(quint8 keyCode);
    // Names of what the key does on layers 0 to 3, or its SnapKey partner's name alone.
    void GetKeyDisplay(QStringList& out, quint8 keyCode) const;

    // ---- Magnetism, key test and calibration
    void DoSetMagnetism(quint8 table, quint8 keyCode, quint32 value, quint8 commit);
    quint32 GetMagnetism(quint8 table, quint8 position) const;
    void SetMagnetism(quint8 table, quint8 position, quint32 value);
    quint32 GetKeyMode(quint8 keyCode) const;
    quint32 GetKeyOption(quint8 position) const;
    void DoSetKeyFlag(quint8 keyCode, bool on);
    void DoStartKeyTest();
    void DoStopKeyTest();
    void DoStartCalibration();
    void DoStopCalibration();

    // ---- Macros and user pictures
    void DoSetMacro(quint8 keyCode, quint16 repeat, quint8 mode, quint8 macroId,
                    const QByteArray& stream);
    void DoWriteUserPic(quint8 slot, const QByteArray& colourMap);
    void DoReadUserPic(quint8 slot);

    // ---- Console actions
    void connectStep();                     // the Connect button
    void readStep();                        // the Read button: take a reply now and dispatch it
    void writeCommandLine();                // the Write button: send the command line
    void refreshStep();                     // the Refresh button
    void selectPid(const QString& pidText); // a product id chosen in the list by hand
    // Builds the row's eight bytes into the command line and, with write, sends them.
    void BuildRowCommand(int row, bool write);
    // The row of a command byte, -1 if the console has none.
    int rowOfCommand(quint8 command) const { return consoleRows.rowOf(command); }

    // Hot-plug: any device change on the machine. A burst yields one refresh 800 ms later.
    void onDevicePluggined();

    // ---- State, for pages, the console and tests
    bool isConnected() const { return commandHandle != nullptr; }
    bool isReadingAll() const { return readingAll; }
    bool isWirelessConnection() const { return isWireless; }
    bool isIdle() const;
    int queuedCount() const { return sendQueue.size(); }
    const QList<QByteArray>& queue() const { return sendQueue; }
    QByteArray LastCommand() const { return lastCommand; }

    quint32 GetDeviceId() const { return deviceId; }
    quint16 GetFirmwareVersion() const { return firmwareVersion; }
    bool VersionAtLeast300() const { return versionAtLeast300; }
    bool VersionAtLeast400() const { return versionAtLeast400; }
    quint16 GetTravelScale() const { return travelScale; }
    quint8 GetCurrentProfile() const { return currentProfile; }
    quint8 GetReportRate() const { return reportRate; }
    quint8 GetDebounce() const { return debounce; }
    const std::array<quint16, 4>& GetSleepTimes() const { return sleepTimes; }
    float GetKeyTravel() const { return keyTravel; }
    bool IsMusicOn() const { return musicOn; }
    bool IsCalibrating() const { return calibrating; }
    const QByteArray& GetDeviceInfo() const { return deviceInfo; }
    const QByteArray& GetKbOptions() const { return kbOptions; }
    const QByteArray& GetKeyMatrix(int slot) const { return keyMatrix[slot]; }
    const QByteArray& GetFnMatrix(int slot) const { return fnMatrix[slot]; }
    const QByteArray& GetMagnetTable(int index) const { return magnetTables[index]; }
    const QByteArray& GetLedParams(int effect) const { return ledParams[effect]; }
    const QByteArray& GetSideLedParams(int effect) const { return sideLedParams[effect]; }
    const QByteArray& GetUserPicture() const { return userPicture; }
    const QByteArray& GetCalibrationBuffer() const { return calibrationBuffer; }

    ConsoleRows& rows() { return consoleRows; }
    const ConsoleRows& rows() const { return consoleRows; }
    QString vidText() const { return lineVid; }
    QString pidText() const { return linePid; }
    void setVidText(const QString& text) { lineVid = text; }
    void setPidText(const QString& text) { linePid = text; }
    QString commandLine() const { return lineCommand; }
    void setCommandLine(const QString& text) { lineCommand = text; }
    QStringList pidList() const { return comboPids; }
    int pidListIndex() const { return comboIndex; }
    QString versionText() const { return labelVersion; }
    bool inputLampOk() const { return lampInput; }
    bool commandLampOk() const { return lampCommand; }

    // The cache index of a magnetism table number, -1 if there is no such table.
    static int magnetTableIndex(quint8 table);
    // The log form of bytes: upper-case hex, an extra blank between groups of four bytes
    // counted from the end.
    static QString logText(const QByteArray& bytes);

signals:
    void onConnect();
    void onDisconnect();
    void onReadBack(const QByteArray& data);
    void onGetPictrue(const QByteArray& data);
    void onUpdataLayer(int layer);
    void onReadAll();
    void onReadDone();
    void onKeyTest();
    void onKeyTesting(bool testing);
    void onCalibration(const QByteArray& data);

    // For the console view: a log line (with an empty line after it when lineEnd), the state
    // of the lamps, the version label, the command line and a row's cells.
    void logLine(const QString& text, bool lineEnd);
    void lampsChanged(bool inputOk, bool commandOk);
    void versionTextChanged(const QString& text);
    void commandLineChanged(const QString& text);
    void pidListChanged();
    void consoleRowChanged(int row);

private:
    enum class Kick { Deferred, Immediate };

    void enqueue(const QByteArray& command, Kick kick);
    void pumpStep();
    void finishReadAll();
    void dispatch(const QByteArray& data);
    void storeIdentity(const QByteArray& data);
    void writeRowCells(quint8 command, std::initializer_list<std::pair<int, int>> cells);
    void calibrationTick();
    void pollInput();
    void takeKeyTestSample(const QByteArray& report);
    void closeHandles();
    void resetVersion();
    void setLamps(bool inputOk, bool commandOk);
    void log(const QByteArray& bytes, bool lineEnd);
    // Arms a step for the present connection; it does nothing if the handles were closed since.
    void armStep(int milliseconds, void (DialogDeviceConnect::*step)());

    HidBackend* hid;
    Clock* clock;

    QList<QByteArray> sendQueue;
    std::unique_ptr<QSettings> settings;
    HidHandle* inputHandle = nullptr;
    HidHandle* commandHandle = nullptr;
    HidHandle* musicHandle = nullptr;
    std::unique_ptr<ClockTimer> inputPollTimer;
    std::unique_ptr<ClockTimer> sendTimer;
    std::unique_ptr<ClockTimer> hotplugTimer;
    bool calibrating = false;
    std::unique_ptr<ClockTimer> calibrationTimer;
    std::array<quint16, 4> sleepTimes{};
    quint8 reportRate = 0;
    quint8 debounce = 0;
    quint8 currentProfile = 0;
    bool isWireless = false;
    QString deviceIdText;
    QString devicePath;
    float keyTravel = 0;
    QByteArray lastCommand;

    std::array<QByteArray, kMagnetTables> magnetTables;
    QByteArray calibrationBuffer;
    QByteArray kbOptions;
    QByteArray deviceInfo;
    std::array<QByteArray, kKeySlots> keyPages;
    std::array<QByteArray, kKeySlots> fnPages;
    std::array<QByteArray, kKeySlots> keyMatrix;
    std::array<QByteArray, kKeySlots> fnMatrix;
    std::array<QByteArray, kLedSlots> ledParams;
    std::array<QByteArray, kSideLedSlots> sideLedParams;
    QByteArray userPicture;

    quint16 firmwareVersion = 0;
    quint32 deviceId = 0;
    bool versionAtLeast300 = false;
    bool versionAtLeast400 = false;
    quint16 travelScale = 10;

    bool readingAll = false;
    bool musicOn = false;

    // Console state.
    ConsoleRows consoleRows;
    QString lineVid;
    QString linePid;
    QString lineCommand;
    QStringList comboPids;
    int comboIndex = -1;
    QString labelVersion = QStringLiteral("0x000");
    bool lampInput = false;
    bool lampCommand = false;

    // Bumped whenever the handles close, so that steps armed before do nothing.
    quint64 connectionGeneration = 0;
    // Steps armed and not yet run; with the queue, what isIdle() looks at.
    int armedSteps = 0;
    bool readAllPending = false;
};
