#include "LinearFixing1.h"

LinearFixing1::LinearFixing1(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("LinearFixing1"));
    setModal(true);
    setWindowTitle(tr("行程校准"));
    setFixedSize(720, 480);
}
