#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QString>
#include <cstddef>
#include <cstdint>

// One entry of an enumeration, the fields the product reads from hidapi's list.
struct HidDeviceInfo
{
    QByteArray path;
    quint16 vendorId = 0;
    quint16 productId = 0;
    quint16 usagePage = 0;
    quint16 usage = 0;
    int interfaceNumber = -1;
    QString manufacturer;
    QString product;
};

// An open device. Backends subclass it; callers only pass it back.
class HidHandle
{
public:
    virtual ~HidHandle() = default;
};

// Every HID call of the product goes through this interface. The methods mirror the hidapi
// functions one to one, with the same results: a count of bytes, or -1 on failure. The backend
// is also the hot-plug source: devicePluggined comes whenever a device came or went, from the
// system's notices (hidapi) or the virtual devices' plugs alike. The calls may come from any
// thread; the signal comes on the backend's.
class HidBackend : public QObject
{
    Q_OBJECT

public:
    ~HidBackend() override = default;

    // hid_enumerate + hid_free_enumeration; vid or pid 0 match any.
    virtual QList<HidDeviceInfo> enumerate(quint16 vendorId, quint16 productId) = 0;
    // hid_open_path; null when the device can't be opened.
    virtual HidHandle* openPath(const QByteArray& path) = 0;
    // hid_close; the handle is gone afterwards. Null is ignored.
    virtual void close(HidHandle* handle) = 0;
    virtual int setNonblocking(HidHandle* handle, bool nonblocking) = 0;
    virtual int sendFeatureReport(HidHandle* handle, const quint8* data, size_t length) = 0;
    virtual int getFeatureReport(HidHandle* handle, quint8* data, size_t length) = 0;
    virtual int write(HidHandle* handle, const quint8* data, size_t length) = 0;
    // hid_read: blocks or not as set with setNonblocking.
    virtual int read(HidHandle* handle, quint8* data, size_t length) = 0;
    virtual int readTimeout(HidHandle* handle, quint8* data, size_t length, int milliseconds) = 0;

    // Any thread: a device came or went. devicePluggined follows on the backend's thread, at
    // once when called there.
    void reportDeviceChange();

    // Why the last open of a path failed, as the system said it (empty when it didn't fail, or
    // opened since): for messages that must say more than "could not be opened".
    virtual QString openFailure(const QByteArray& path) const;

protected:
    // Backends record each open's outcome; any thread.
    void noteOpen(const QByteArray& path, const QString& failure = QString());

signals:
    // Arrival, removal and other changes alike, as the system's notice tells no more.
    void devicePluggined(bool plugged);

private:
    mutable QMutex failuresLock;
    QHash<QByteArray, QString> failures;
};
