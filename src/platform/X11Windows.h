#pragma once

#include <QString>
#include <QtGlobal>

// The two window operations Qt has no call for, done on X11 with the connection Qt already
// holds. Both answer "not done" away from an X11 session.
namespace X11Windows {

// Whether the application runs on X11, so that the calls below can work.
bool available();
// The managed top-level window with this title (and WM_CLASS class, when not empty), or 0.
quintptr find(const QString& title, const QString& className);
// Sends WM_DELETE_WINDOW, the X11 close request. False when it could not be sent.
bool requestClose(quintptr window);

} // namespace X11Windows
