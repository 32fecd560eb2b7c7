#include "image/ui/TavloViewFrame.h"

#include "framework/core/CDocument.h"
#include "res/CommandIds.h"

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
                                });
    return map;
}
