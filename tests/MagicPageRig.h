#pragma once

// The magnetic page over a wired virtual keyboard in virtual time: connected, read whole,
// shown, and the frames of the read forgotten. Helpers drive it as a user does.

#include "FrameMagic.h"
#include "KeyPositions.h"
#include "KeyboardButton.h"
#include "ModuleKeyboard.h"
#include "SimRig.h"
#include "TestSupport.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <initializer_list>

struct MagicRig : SimRig
{
    FrameMagic page{conn.get(), &clock};

    MagicRig()
    {
        page.show();
        keyboard->model().clearReceivedFrames();
    }
    template <class T = QWidget> T* find(const char* name, const char* within = nullptr) const
    {
        const QObject* root = within ? widget<QWidget>(&page, within) : &page;
        return widget<T>(root, name);
    }
    void click(const char* name, const char* within = nullptr)
    {
        QTest::mouseClick(find<QAbstractButton>(name, within), Qt::LeftButton);
    }
    void type(const char* within, const char* edit, const QString& text)
    {
        auto* box = find<QLineEdit>(edit, within);
        box->selectAll();
        QTest::keyClicks(box, text);
    }
    KeyboardButton* key(quint8 code) const { return page.keyboard()->button(code); }
    void select(std::initializer_list<quint8> codes)
    {
        for (quint8 code : codes)
            QTest::mouseClick(key(code), Qt::LeftButton);
    }
    quint32 fwValue(quint8 table, quint8 code) const
    {
        return fw().magnetValue(table, PositionOfCode(code));
    }
};
