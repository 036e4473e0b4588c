#pragma once

#include "Platform.h"

#include <QObject>
#include <QString>
#include <array>
#include <functional>
#include <memory>

class Clock;
class ClockTimer;
struct DeviceEnumInfo;

// The sibling driver programs that serve the keyboards the hub doesn't speak to itself: starts
// them hidden, finds their windows by title, hands a device over through the per-user values,
// hides and shows their windows, and ends them. Everything goes through the platform layer.
// The slot of a sibling is the family of the devices it serves.
class SiblingHost : public QObject
{
    Q_OBJECT

public:
    using WindowId = Platform::WindowId;

    static constexpr int kSlotCount = 10; // only 0..3 are used
    static constexpr int kWatchMs = 200;
    enum Family { RY = 0, WS = 1, BY = 2, JM = 3 };

    struct Sibling
    {
        const char* name;    // for the log
        const char* program; // under the sibling root; on Windows with ".exe"
        const char* title;   // of its window
        bool embedded;       // shown inside the hub rather than as its own window
    };
    static constexpr std::array<Sibling, 4> kSiblings{{
        {.name = "RY",
         .program = "/RyExe/OrbeCloudDriver.exe",
         .title = "Orbe Cloud Driver",
         .embedded = true},
        {.name = "WS", .program = "/WsExe/Orbe-WS.exe", .title = "Orbe", .embedded = false},
        {.name = "BY", .program = "/ByExe/Orbe-BY.exe", .title = "bymold", .embedded = true},
        {.name = "JM",
         .program = "/JmExe/Orbe-Gaming-Bub.exe",
         .title = "Orbe-Gaming-Bub",
         .embedded = false},
    }};
    // The second brand's RY driver.
    static constexpr Sibling kTarnwickRy{.name = "RY",
                                         .program = "/TrExe/TarnwickDriver.exe",
                                         .title = "Tarnwick Driver",
                                         .embedded = true};

    // root is the folder that holds the sibling folders. embedFrame gives the native window of
    // the frame that embedded siblings go into; it is asked only once a window is found.
    SiblingHost(Platform& platform, Clock* clock, const QString& root, bool tarnwickBuild,
                std::function<WindowId()> embedFrame, QObject* parent = nullptr);
    ~SiblingHost() override;

    // A Windows program name as this system names it: without ".exe" away from Windows.
    static QString nativeName(const QString& windowsName);
    const Sibling& sibling(int slot) const;
    QString programPath(int slot) const;
    bool isInstalled(int slot) const;
    // Whether the sibling's window goes inside the hub here; false where this system can't
    // embed another program's window, which is then shown as its own.
    bool showsEmbedded(int slot) const;
    WindowId window(int slot) const;
    bool isWatching() const;

    // Start-up: ends stale siblings, starts the installed ones hidden and watches for their
    // windows. A missing program is logged once.
    void start();
    // One round of the watch: the hub being visible hides the top-level siblings; a dead WS or JM
    // is started again; windows not found yet are looked for. The watch stops itself when
    // nothing is left to look for.
    void watchSiblings(bool hubVisible);

    // Hides every sibling window found (the embedded ones also sent to the bottom).
    void hideAll();
    // Hides the embedded ones and JM (the return button's way).
    void hideForReturnButton();
    // The per-user values that tell the WS, BY and JM drivers which device to show.
    void handOver(const DeviceEnumInfo& device, const QString& localeTag);
    // The RY driver is told only when its device changed: the values are cleared, and after
    // kRyValuesDelayMs the real ones follow. Returns whether it was told.
    bool handOverToRy(const DeviceEnumInfo& device);
    static constexpr int kRyValuesDelayMs = 100;
    // The hub closes: the sibling processes end, then the windows found are asked to close.
    void endAll();
    void postCloseToAll();
    // The hub's frame is about to go: the windows in it go back to the desktop rather than
    // being destroyed with it.
    void releaseEmbedded();

    std::function<bool()> hubVisible; // asked by the watch's own timer

signals:
    // A sibling's window was found.
    void windowFound(int slot);

private:
    bool hasWorkToWatch() const;
    void restartIfGone(int slot);
    void adopt(int slot, WindowId window);
    void writeValue(const char* key, const QVariant& value);

    Platform& platform;
    Clock* clock;
    QString root;
    bool tarnwickBuild;
    std::function<WindowId()> embedFrame;
    std::array<WindowId, kSlotCount> windows{};
    std::array<bool, 4> installed{};
    std::unique_ptr<ClockTimer> watchTimer;
};
