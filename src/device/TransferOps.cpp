#include "TransferOps.h"

#include "CommandLayouts.h"
#include "DeviceCache.h"
#include "DeviceLink.h"
#include "DialogDeviceConnect.h"
#include "EffectCatalogue.h"
#include "MacroBlob.h"

#include <algorithm>

using namespace CommandLayouts;
using Kick = DeviceLink::Kick;

namespace {

constexpr u8 kPictureWritePages = 7;
constexpr u8 kPictureReadPages = 6;
constexpr u8 kMacroKind = 0x09; // the key entry kind that plays a macro

static_assert(MacroBlob::kPageSize == kPagePayload);

} // namespace

void TransferOps::DoSetMacro(quint8 keyCode, quint16 repeat, quint8 mode, quint8 macroId,
                             const QByteArray& stream)
{
    const QByteArray blob = MacroBlob::build(repeat, stream);
    const u8 pages = static_cast<u8>(MacroBlob::pageCount(blob));
    for (u8 page = 0; page < pages; ++page) {
        MacroPage c{.macroId = macroId, .page = page, .last = u8(page + 1 == pages ? 1 : 0)};
        const QByteArray payload = MacroBlob::page(blob, page);
        std::copy_n(payload.constData(), std::min<qsizetype>(payload.size(), kPagePayload),
                    reinterpret_cast<char*>(c.payload));
        p.link.enqueue(bytes(c), Kick::Deferred);
    }
    // The pages are not held back by a read sequence, but the key entry is.
    const quint8 entry[4] = {kMacroKind, mode, macroId, 0x00};
    p.front.DoSetKey(keyCode, entry, 0, 1);
}

void TransferOps::DoWriteUserPic(quint8 slot, const QByteArray& colourMap)
{
    if (p.link.isReadingAll()) return;
    p.cache.musicOn = false;
    // Switch the effect to this slot's picture first; the pages follow.
    p.front.DoSetLedEffect(EffectCatalogue::kUserPicture, slot);
    for (u8 page = 0; page < kPictureWritePages; ++page) {
        PictureWrite c{
            .slot = slot, .page = page, .last = u8(page == kPictureWritePages - 1 ? 1 : 0)};
        // A short map goes out padded with zeros.
        const QByteArray part = colourMap.mid(page * kPagePayload, kPagePayload);
        std::copy(part.cbegin(), part.cend(), reinterpret_cast<char*>(c.payload));
        p.link.enqueue(bytes(c), Kick::Deferred);
    }
}

void TransferOps::DoReadUserPic(quint8 slot)
{
    if (p.link.isReadingAll()) return;
    p.cache.userPicture.clear();
    for (u8 page = 0; page < kPictureReadPages; ++page)
        p.link.enqueue(bytes(PictureRead{.slot = slot, .page = page}), Kick::Deferred);
}
