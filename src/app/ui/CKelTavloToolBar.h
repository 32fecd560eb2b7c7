#pragma once

#include "framework/ui/CToolBar.h"

namespace keltavlo {

// The toolbar class of the program.
class CKelTavloToolBar final : public Dynamic<"CKelTavloToolBar", CKelTavloToolBar, CToolBar> {
public:
    using Dynamic::Dynamic;
};

} // namespace keltavlo
