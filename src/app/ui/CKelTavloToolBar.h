#pragma once

#include "framework/ui/CToolBar.h"

namespace keltavlo {

// The program's own kind of toolbar.
class CKelTavloToolBar final : public Dynamic<"CKelTavloToolBar", CKelTavloToolBar, CToolBar> {
public:
    using Dynamic::Dynamic;
};

} // namespace keltavlo
