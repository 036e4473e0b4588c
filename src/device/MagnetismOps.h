#pragma once

#include "DeviceParts.h"

#include <QByteArray>
#include <memory>

class ClockTimer;

// Per-key magnetism values, the key-test stream and the calibration scan.
class MagnetismOps
{
public:
    static constexpr int kCalibrationTickMs = 120;

    explicit MagnetismOps(const DeviceParts& parts);
    ~MagnetismOps();

    void DoSetMagnetism(quint8 table, quint8 keyCode, quint32 value, quint8 commit);
    quint32 GetKeyMode(quint8 keyCode) const;
    quint32 GetKeyOption(quint8 position) const;
    void DoSetKeyFlag(quint8 keyCode, bool on);
    void DoStartKeyTest();
    void DoStopKeyTest();
    void DoStartCalibration();
    void DoStopCalibration();

    // A report of the input interface: logged, and taken as a key-test sample when it is one.
    void takeInputReport(const QByteArray& report);

private:
    void calibrationTick();

    DeviceParts p;
    std::unique_ptr<ClockTimer> calibrationTimer;
    // Counts every calibration page asked for, over all scans: a scan started mid-way gives a
    // short first scan, which the receiver takes as it comes.
    quint64 calibrationPages = 0;
};
