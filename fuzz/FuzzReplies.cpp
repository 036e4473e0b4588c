// The connection's reply handling over a keyboard that says anything: every reply and input
// report comes from the input (ReplyScript.h), in virtual time, the HID calls inline. Short,
// empty, missing and wrong replies all reach the dispatch, the read sequence and the caches.

#include "FuzzSupport.h"
#include "ModuleGenKeymapping.h"
#include "ReplyScript.h"

#include <QCoreApplication>
#include <algorithm>
#include <cstring>
#include <deque>

namespace {

// One native keyboard, wired (input and command interfaces) and wireless, whose reads hand
// over the input's chunks in order; with none left a read finds nothing.
class StreamBackend : public HidBackend
{
public:
    std::deque<QByteArray> replies;
    std::deque<QByteArray> inputReports;
    int openHandles = 0;

    QList<HidDeviceInfo> enumerate(quint16 vendorId, quint16 productId) override
    {
        QList<HidDeviceInfo> list;
        auto add = [&](quint16 pid, quint16 page, quint16 usage, const char* path) {
            if ((vendorId && vendorId != ReplyScript::kVendor) || (productId && productId != pid))
                return;
            HidDeviceInfo info;
            info.path = path;
            info.vendorId = ReplyScript::kVendor;
            info.productId = pid;
            info.usagePage = page;
            info.usage = usage;
            list.append(info);
        };
        add(ReplyScript::kWiredProduct, 0xFFFF, 1, "sim:3151:502F:1");
        add(ReplyScript::kWiredProduct, 0xFFFF, 2, "sim:3151:502F:2");
        add(ReplyScript::kWirelessProduct, 0xFF55, 0x0202, "sim:3151:5030:FF55");
        return list;
    }
    HidHandle* openPath(const QByteArray&) override
    {
        ++openHandles;
        return new HidHandle;
    }
    void close(HidHandle* handle) override
    {
        if (!handle) return;
        --openHandles;
        delete handle;
    }
    int setNonblocking(HidHandle*, bool) override { return 0; }
    int sendFeatureReport(HidHandle*, const quint8*, size_t length) override { return int(length); }
    int write(HidHandle*, const quint8*, size_t length) override { return int(length); }
    int getFeatureReport(HidHandle*, quint8* data, size_t length) override
    {
        return take(replies, data, length);
    }
    int readTimeout(HidHandle*, quint8* data, size_t length, int) override
    {
        return take(replies, data, length);
    }
    int read(HidHandle*, quint8* data, size_t length) override
    {
        return take(inputReports, data, length);
    }

private:
    static int take(std::deque<QByteArray>& queue, quint8* data, size_t length)
    {
        if (queue.empty()) return -1;
        const QByteArray next = queue.front();
        queue.pop_front();
        const size_t n = std::min(length, size_t(next.size()));
        std::memcpy(data, next.constData(), n);
        return int(n);
    }
};

const ModuleGenKeymapping& keys()
{
    static const ModuleGenKeymapping* table = new ModuleGenKeymapping;
    return *table;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static int argc = 1;
    static char name[] = "fuzz_replies";
    static char* argv[] = {name, nullptr};
    static QCoreApplication* app = new QCoreApplication(argc, argv);
    Q_UNUSED(app);
    if (size == 0) return 0;

    StreamBackend hid;
    for (size_t at = 1; at < size;) {
        const quint8 header = data[at++];
        const size_t n =
            std::min({size_t(header & 0x7F), size_t(ReplyScript::kMaxChunk), size - at});
        const QByteArray chunk(reinterpret_cast<const char*>(data + at), qsizetype(n));
        at += n;
        (header & ReplyScript::kInputChunk ? hid.inputReports : hid.replies).push_back(chunk);
    }

    ManualClock clock;
    {
        DialogDeviceConnect connection(&hid, &clock, keys(),
                                       FuzzSupport::scratchDir() + QStringLiteral("/device.ini"),
                                       std::make_unique<InlineHidExecutor>());
        ReplyScript::drive(connection, clock, data[0],
                           [&] { return hid.replies.empty() && hid.inputReports.empty(); });
        // Whatever the keyboard said, the cache hands out what it holds within its bounds.
        quint8 entry[4];
        for (int layer = 0; layer < 4; ++layer)
            connection.GetKeyEntry(entry, 0x29, quint8(layer));
    }
    // Every handle the connection opened, it closed.
    if (hid.openHandles != 0) __builtin_trap();
    return 0;
}
