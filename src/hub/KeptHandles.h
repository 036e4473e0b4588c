#pragma once

#include <QByteArray>
#include <map>

class HidBackend;
class HidHandle;

// Handles that the Bluetooth and WS probes leave open after a pass, as the devices expect. One
// per path: probing a path again closes the handle of the pass before, so that a device probed
// every 30 seconds doesn't pile up open handles. Not locked: only the discovery pass uses it.
class KeptHandles
{
public:
    explicit KeptHandles(HidBackend* hid);
    ~KeptHandles();
    KeptHandles(const KeptHandles&) = delete;
    KeptHandles& operator=(const KeptHandles&) = delete;

    // Closes the handle kept for path, if any, and opens it anew; null when it doesn't open.
    HidHandle* reopen(const QByteArray& path);
    int count() const { return int(handles.size()); }
    void closeAll();

private:
    HidBackend* hid;
    std::map<QByteArray, HidHandle*> handles;
};
