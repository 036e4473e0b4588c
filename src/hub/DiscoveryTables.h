#pragma once

#include <QtGlobal>
#include <array>

// What the discovery pass looks for and how it paces its probes: the interfaces of each route,
// the vendor ids walked, and the tries and waits of every probe.
namespace Discovery {

struct Interface
{
    quint16 usagePage;
    quint16 usage;
};

struct ProductRange
{
    quint16 first;
    quint16 last;
};

// Product ids that pass 1 skips and pass 2 takes.
inline constexpr std::array<ProductRange, 3> kExclusionSet{{
    {.first = 0x000B, .last = 0x0050},
    {.first = 0x5151, .last = 0x5152},
    {.first = 0x22B4, .last = 0x22B5},
}};

constexpr bool isExcludedProduct(quint16 productId)
{
    for (const ProductRange& r : kExclusionSet)
        if (productId >= r.first && productId <= r.last) return true;
    return false;
}

// ---- Pass 1: the cloud driver family, native keyboards included.
inline constexpr const char* kEnumSettingsFile = "/config/enumsetting.ini";
inline constexpr const char* kVidSet0Key = "VIDset0";
inline constexpr const char* kVidSet1Key = "VIDset1";
inline constexpr const char* kVidSet0Default = "0x3151, 0x38EE, 0x25A7, 0x05AC, 0x0461";
inline constexpr const char* kVidSet1Default = "0x38EE, 0x320F";

inline constexpr Interface kBluetoothInterface{.usagePage = 0xFF55, .usage = 0x0202};
inline constexpr quint16 kBluetoothUsagePage = 0xFF55; // other usages only reach the check
inline constexpr Interface kWiredInterface{.usagePage = 0xFFFF, .usage = 2};
inline constexpr Interface kHitScreenInterface{.usagePage = 0xFF01, .usage = 1};
inline constexpr quint16 kHitScreenVendor = 0x3151;
inline constexpr quint16 kHitScreenProduct = 0x504A;
inline constexpr const char* kHitScreenVendorPath = "HitScreen";
inline constexpr const char* kNoVendorPath = "null";

// The largest id a keyboard answers on the wired probe; larger ids (and 0) are receivers.
inline constexpr quint32 kLargestWiredId = 0x1000;

// ---- Pass 2: WS family. The list read from VIDset1 is thrown away; these are walked.
inline constexpr std::array<quint16, 2> kWsVendors{0x38EE, 0x320F};
inline constexpr Interface kWsInterface{.usagePage = 0xFF1C, .usage = 0x0092};
inline constexpr std::array<quint8, 8> kWsIdentify{0x04, 0x00, 0x00, 0x30, 0x06, 0x00, 0x00, 0x00};
inline constexpr int kWsReplyLength = 16;
inline constexpr int kWsIdOffset = 11;
inline constexpr int kWsMarkerOffset = 3; // reply bytes 3 and 4 echo 30 06

// ---- Pass 3: BY family.
inline constexpr quint16 kByVendor = 0x38EE;
inline constexpr quint16 kByProduct = 0x0016;
inline constexpr quint16 kByUsagePage = 0xFF60;
inline constexpr std::array<quint8, 7> kBySerialRequest{0x09, 0x82, 0x01, 0x00, 0x01, 0x00, 0x06};
inline constexpr int kByReportLength = 64;
inline constexpr int kBySerialOffset = 7;
inline constexpr int kBySerialBytes = 6;

// ---- Pass 4: JM family, listed without being opened.
inline constexpr quint16 kJmVendor = 0x3554;
inline constexpr Interface kJmInterface{.usagePage = 0xFF02, .usage = 2};
inline constexpr quint64 kJmDeviceId = 0xFB29;

// ---- Pacing, in milliseconds.
struct BluetoothPacing
{
    int tries;
    int readTimeoutMs;
    int retryMs;
};
inline constexpr BluetoothPacing kBluetoothPacing{.tries = 5, .readTimeoutMs = 200, .retryMs = 100};

struct WiredPacing
{
    int settleMs;      // between sending the request and reading the answer
    int retryMs;       // before the next round
    int countedRounds; // rounds that answered 8F before an id of 0 is taken
};
inline constexpr WiredPacing kWiredPacing{.settleMs = 150, .retryMs = 50, .countedRounds = 6};

struct WsPacing
{
    int tries;
    int settleMs;
    int readTimeoutMs;
    int retryMs;
};
inline constexpr WsPacing kWsPacing{
    .tries = 10, .settleMs = 20, .readTimeoutMs = 50, .retryMs = 10};

inline constexpr int kByReadTimeoutMs = 50;

// The questions to a receiver whose probe answered an id of 0 or above 0x1000.
struct ReceiverStep
{
    enum Until { Once, LinkUp, Idle };
    quint8 command;
    quint8 parameter; // byte 2 of the report
    int tries;
    Until until; // LinkUp: reply byte 6 is 1; Idle: reply byte 1 is 0
};

inline constexpr std::array<ReceiverStep, 5> kReceiverSteps{{
    {.command = 0xF6, .parameter = 0x0A, .tries = 1, .until = ReceiverStep::Once},
    {.command = 0xF7, .parameter = 0x00, .tries = 5, .until = ReceiverStep::LinkUp},
    {.command = 0x8F, .parameter = 0x00, .tries = 1, .until = ReceiverStep::Once},
    {.command = 0xF7, .parameter = 0x00, .tries = 5, .until = ReceiverStep::Idle},
    {.command = 0xFC, .parameter = 0x00, .tries = 1, .until = ReceiverStep::Once},
}};
inline constexpr int kReceiverSettleMs = 100;
inline constexpr int kReceiverRetryMs = 50;

} // namespace Discovery
