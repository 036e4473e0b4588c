#pragma once

#include <QDialog>

// The travel calibration guide, opened modal from the device page. Its steps and the progress
// view come with the calibration.
class LinearFixing1 : public QDialog
{
    Q_OBJECT

public:
    explicit LinearFixing1(QWidget* parent = nullptr);
};
