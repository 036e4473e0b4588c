#pragma once

#include <QDialog>

class DialogDeviceConnect;

// The engineering console: the protocol's debug view on the one connection, opened by a
// double click on the logo with Ctrl and D held. Its table, log and id controls come with the
// console itself.
class DialogDeviceConsole : public QDialog
{
    Q_OBJECT

public:
    static constexpr QSize kSize{1280, 756};

    explicit DialogDeviceConsole(DialogDeviceConnect* connection, QWidget* parent = nullptr);

    DialogDeviceConnect* connection() const { return link; }

private:
    DialogDeviceConnect* link;
};
