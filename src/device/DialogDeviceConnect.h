#pragma once

#include "DeviceCache.h"
#include "HidExecutor.h"

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <array>
#include <memory>

class AudioCapture;
class Clock;
class ConnectSteps;
class ConsoleModel;
class DeviceLink;
class HidBackend;
class KeyOps;
class MagnetismOps;
class ModuleGenKeymapping;
class MusicTimer;
class ReadSequence;
class ReplyDispatch;
class SettingsOps;
class TransferOps;

// The live link to one native keyboard, as the pages see it: the Do* operations queue commands
// and update the cache at once, the Get* operations read the cache, and the signals tell what
// came back. Behind it:
//   DeviceLink      handles, send queue, pump, read step, input poll (HID calls on the executor)
//   DeviceCache     plain data that the reply dispatch fills and the Do* operations update
//   ReplyDispatch   what each reply means, by the command sent last
//   the groups      ConnectSteps, ReadSequence, SettingsOps, KeyOps, MagnetismOps, TransferOps
//   MusicTimer      the music report's rounds while the music effect is chosen
//   ConsoleModel    what the engineering console shows, and device.ini
// Whoever builds the window builds this and passes it down. Use it on the thread that made it.
class DialogDeviceConnect : public QObject
{
    Q_OBJECT

public:
    static constexpr int kKeySlots = DeviceCache::kKeySlots;
    static constexpr int kMagnetTables = DeviceCache::kMagnetTables;
    static constexpr int kLedSlots = DeviceCache::kLedSlots;
    static constexpr int kSideLedSlots = DeviceCache::kSideLedSlots;

    // hid, clock and keys must outlive the connection. settingsPath is the device.ini file.
    // io runs the HID calls; null gives the connection an I/O thread of its own.
    DialogDeviceConnect(HidBackend* hid, Clock* clock, const ModuleGenKeymapping& keys,
                        const QString& settingsPath, std::unique_ptr<HidExecutor> io = nullptr,
                        QObject* parent = nullptr);
    // Closes the handles and waits for the I/O thread's last call.
    ~DialogDeviceConnect() override;

    // What the music effect shows: the capture's latest samples, read at each round. Without
    // one the effect sends silence. The capture must outlive the connection.
    void setAudioCapture(const AudioCapture* capture);

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
    // "Save Matrix": the connected keyboard's layer-0 matrix becomes the default one; returns the
    // lines it printed.
    QStringList SaveMatrix();
    // What the console shows.
    ConsoleModel& console() { return *consoleModel; }
    const ConsoleModel& console() const { return *consoleModel; }

    // Hot-plug: any device change on the machine. A burst yields one refresh 800 ms later.
    void onDevicePluggined();

    // ---- State, for pages, the console and tests
    bool isConnected() const;
    bool isReadingAll() const;
    bool isWirelessConnection() const;
    // Nothing queued, armed or under way: the pages' writes have all been answered.
    bool isIdle() const;
    int queuedCount() const;
    const QList<QByteArray>& queue() const;
    QByteArray LastCommand() const;

    quint32 GetDeviceId() const { return data.deviceId; }
    quint16 GetFirmwareVersion() const { return data.firmwareVersion; }
    bool VersionAtLeast300() const { return data.versionAtLeast300; }
    bool VersionAtLeast400() const { return data.versionAtLeast400; }
    quint16 GetTravelScale() const { return data.travelScale; }
    quint8 GetCurrentProfile() const { return data.currentProfile; }
    quint8 GetReportRate() const { return data.reportRate; }
    quint8 GetDebounce() const { return data.debounce; }
    const std::array<quint16, 4>& GetSleepTimes() const { return data.sleepTimes; }
    float GetKeyTravel() const { return data.keyTravel; }
    bool IsMusicOn() const { return data.musicOn; }
    bool IsCalibrating() const { return data.calibrating; }
    const QByteArray& GetDeviceInfo() const { return data.deviceInfo; }
    const QByteArray& GetKbOptions() const { return data.kbOptions; }
    const QByteArray& GetKeyMatrix(int slot) const { return data.keyMatrix[slot]; }
    const QByteArray& GetFnMatrix(int slot) const { return data.fnMatrix[slot]; }
    const QByteArray& GetMagnetTable(int index) const { return data.magnetTables[index]; }
    const QByteArray& GetLedParams(int effect) const { return data.ledParams[effect]; }
    const QByteArray& GetSideLedParams(int effect) const { return data.sideLedParams[effect]; }
    const QByteArray& GetUserPicture() const { return data.userPicture; }
    const QByteArray& GetCalibrationBuffer() const { return data.calibrationBuffer; }

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
    // A connect step is over, whatever it opened (onConnect and onDisconnect don't always come).
    void connectStepDone();

private:
    DeviceCache data;
    std::unique_ptr<HidExecutor> io;
    std::unique_ptr<ConsoleModel> consoleModel;
    std::unique_ptr<DeviceLink> link;
    std::unique_ptr<ReplyDispatch> dispatch;
    std::unique_ptr<ConnectSteps> connection;
    std::unique_ptr<ReadSequence> readSequence;
    std::unique_ptr<SettingsOps> settings;
    std::unique_ptr<KeyOps> keyOps;
    std::unique_ptr<MagnetismOps> magnetism;
    std::unique_ptr<TransferOps> transfers;
    std::unique_ptr<MusicTimer> music;
};
