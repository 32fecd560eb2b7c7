#include "framework/ui/DialogControls.h"

#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/CSpinEdit.h"
#include "framework/ui/MessageBoxes.h"

#include <QCheckBox>
#include <QLineEdit>

namespace keltavlo {

QLineEdit& CDataExchange::GetEdit(unsigned id) const {
    return dynamic_cast<QLineEdit&>(controls.GetDlgItem(id));
}

// An edit may change the text that it is given, for example a line break.
void CDataExchange::Fill(unsigned id, const QString& text) {
    GetEdit(id).setText(text);
    controls.exchangedTexts[id] = GetEdit(id).text();
}

std::optional<QString> CDataExchange::ReadChanged(unsigned id) const {
    QString text = GetEdit(id).text();
    if (WasRefused() || text == controls.exchangedTexts[id]) return std::nullopt;
    return text;
}

void CDataExchange::Refuse(unsigned id, std::string message) {
    refusedEdit = &GetEdit(id);
    refusal = std::move(message);
}

std::int64_t CDataExchange::ExchangeNumber(unsigned id, std::int64_t value, Range range) {
    if (!saving) {
        Fill(id, QString::number(value));
        if (auto* spin = dynamic_cast<CSpinEdit*>(GetEdit(id).parentWidget()))
            spin->SetRange(range.minimum, range.maximum);
        return value;
    }
    const std::optional<QString> text = ReadChanged(id);
    if (!text) return value;
    bool isNumber = false;
    const std::int64_t number = text->trimmed().toLongLong(&isNumber);
    if (isNumber && range.minimum <= number && number <= range.maximum) {
        controls.exchangedTexts[id] = *text;
        return number;
    }
    Refuse(id, FormatString(AFX_IDP_PARSE_INT_RANGE, static_cast<int>(range.minimum),
                            static_cast<int>(range.maximum)));
    return value;
}

void CDataExchange::Number(unsigned id, std::uint32_t& member, Range range) {
    member = static_cast<std::uint32_t>(ExchangeNumber(id, member, range));
}

void CDataExchange::Number(unsigned id, std::int32_t& member, Range range) {
    member = static_cast<std::int32_t>(ExchangeNumber(id, member, range));
}

void CDataExchange::Text(unsigned id, std::string& member, std::size_t mostBytes) {
    if (!saving) return Fill(id, ToQString(member));
    const std::optional<QString> changed = ReadChanged(id);
    if (!changed) return;
    std::string text = FromQString(*changed);
    if (text.size() > mostBytes)
        return Refuse(id, FormatString(AFX_IDP_PARSE_STRING_SIZE, static_cast<unsigned>(mostBytes)));
    member = std::move(text);
    controls.exchangedTexts[id] = *changed;
}

void CDataExchange::Check(unsigned id, bool& member) {
    auto& box = dynamic_cast<QCheckBox&>(controls.GetDlgItem(id));
    if (saving)
        member = box.isChecked();
    else
        box.setChecked(member);
}

DialogControls::~DialogControls() = default;

bool DialogControls::UpdateData(bool saveAndValidate) {
    CDataExchange exchange(*this, saveAndValidate);
    DoDataExchange(exchange);
    if (!exchange.WasRefused()) return true;
    ShowMessageBox(exchange.GetRefusal());
    exchange.GetRefusedEdit().setFocus();
    exchange.GetRefusedEdit().selectAll();
    return false;
}

} // namespace keltavlo
