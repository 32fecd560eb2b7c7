#include "formats/ui/Quake2EditPropertyPage.h"

#include <QVBoxLayout>

namespace keltavlo {

Quake2EditPropertyPage::Quake2EditPropertyPage() : EditPropertyPage(QStringLiteral("Quake II")) {
    innerSheet.AddPage(generalPage);
    innerSheet.AddPage(surfacePage);
    innerSheet.AddPage(contentsPage);
    auto* frame = new QVBoxLayout(this);
    frame->addWidget(&innerSheet);
}

void Quake2EditPropertyPage::OnInitDialog() {
    innerSheet.Create(*this);
}

bool Quake2EditPropertyPage::OnApply() {
    return innerSheet.Apply() && EditPropertyPage::OnApply();
}

TavloDocument& GetInnerPageDocument(const CPropertyPage& page) {
    return dynamic_cast<const EditPropertyPage&>(*page.GetSheet()->parentWidget()).GetDocument();
}

} // namespace keltavlo
