#pragma once

#include <QMetaType>
#include <QString>
#include <QtGlobal>

// The record of one discovered device. Created by the discovery pass and kept by the device
// registry; the window, its cards and the device page get copies, and name a device by its
// devicePath.
struct DeviceEnumInfo
{
    enum Family : quint8 { CloudFamily = 0, WsFamily = 1, ByFamily = 2, JmFamily = 3 };
    enum Connection : quint8 { Usb = 0, Receiver = 1, Bluetooth = 2 };
    enum Type : quint8 { Keyboard = 0, Mouse = 1, HitBox = 3, UnknownType = 255 };

    quint16 vendorId = 0;
    quint16 productId = 0;
    quint64 deviceId = 0; // from the probe or the catalogue
    quint8 deviceType = UnknownType;
    quint8 family = CloudFamily; // also the slot of the sibling window
    quint8 connectionType = Usb;
    bool online = false;
    quint32 reserved = 0;
    quint32 lastSeen = 0; // seconds since the epoch
    QString displayName;
    QString reservedText; // never written
    QString vendorPath;   // a HID path, "null", "HitScreen" or the BY family's 12-digit text
    QString devicePath;   // the HID path; the record's key
};

Q_DECLARE_METATYPE(DeviceEnumInfo)
