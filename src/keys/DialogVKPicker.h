#pragma once

#include "DialogKeyPickerBase.h"

// The small picker of the advanced keys: one key or a combination of up to three.
class DialogVKPicker : public DialogKeyPickerBase
{
    Q_OBJECT

public:
    explicit DialogVKPicker(QWidget* parent = nullptr);
};
