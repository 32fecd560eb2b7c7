#include "image/ui/TavloViewFrame.h"

#include "framework/core/UserInterface.h"
#include "framework/ui/CClipboard.h"
#include "image/TavloDocument.h"
#include "image/TextureEdits.h"
#include "image/ui/ClipboardPicture.h"
#include "res/CommandIds.h"

#include <QMimeData>

namespace keltavlo {

void TavloViewFrame::SetZoom(int newZoom) {
    if (newZoom == zoom) return;
    zoom = newZoom;
    if (CDocument* document = GetActiveDocument()) document->UpdateAllViews(nullptr);
}

const CommandMap& TavloViewFrame::GetCommandMap() const {
    using Self = TavloViewFrame;
    static const CommandMap map(ChildFrame::GetCommandMap(),
                                {
                                    Command<&Self::OnZoom<1>, &Self::OnUpdateZoom<1>>(ID_ZOOM_100),
                                    Command<&Self::OnZoom<2>, &Self::OnUpdateZoom<2>>(ID_ZOOM_200),
                                    Command<&Self::OnZoom<4>, &Self::OnUpdateZoom<4>>(ID_ZOOM_400),
                                    Command<&Self::OnZoom<8>, &Self::OnUpdateZoom<8>>(ID_ZOOM_800),
                                    Command<&Self::OnZoom<16>, &Self::OnUpdateZoom<16>>(ID_ZOOM_1600),
                                    Command<&Self::OnEditCopy>(ID_EDIT_COPY),
                                    Command<&Self::OnEditCut>(ID_EDIT_CUT),
                                    Command<&Self::OnEditPaste, &Self::OnUpdateEditPaste>(ID_EDIT_PASTE),
                                    Command<&Self::OnEditClear, &Self::OnUpdateEditClear>(ID_EDIT_CLEAR),
                                });
    return map;
}

TavloDocument* TavloViewFrame::GetDocument() const {
    return dynamic_cast<TavloDocument*>(GetActiveDocument());
}

void TavloViewFrame::OnEditCopy() {
    const CWaitCursor wait;
    const TavloDocument* document = GetDocument();
    if (auto picture = document ? MakeClipboardPicture(document->GetTexture()) : nullptr)
        CClipboard::Get().SetData(std::move(picture));
}

void TavloViewFrame::OnEditCut() {
    OnEditCopy();
    OnEditClear();
}

// If the clipboard contains no picture, the document stays unchanged.
void TavloViewFrame::OnEditPaste() {
    const CWaitCursor wait;
    TavloDocument* document = GetDocument();
    if (!document) return;
    if (std::optional<Image> picture = ReadClipboardPicture(CClipboard::Get()))
        PastePicture(*document, std::move(*picture));
    document->UpdateAllViews(nullptr);
}

void TavloViewFrame::OnUpdateEditPaste(CCmdUI& state) const {
    state.Enable(OffersPicture(CClipboard::Get().GetFormats()));
}

} // namespace keltavlo
