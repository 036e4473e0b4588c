#include "KeptHandles.h"

#include "HidBackend.h"

KeptHandles::KeptHandles(HidBackend* backend) : hid(backend) {}

KeptHandles::~KeptHandles()
{
    closeAll();
}

HidHandle* KeptHandles::reopen(const QByteArray& path)
{
    if (const auto it = handles.find(path); it != handles.end()) {
        hid->close(it->second);
        handles.erase(it);
    }
    HidHandle* handle = hid->openPath(path);
    if (handle) handles.emplace(path, handle);
    return handle;
}

void KeptHandles::closeAll()
{
    for (const auto& [path, handle] : handles)
        hid->close(handle);
    handles.clear();
}
