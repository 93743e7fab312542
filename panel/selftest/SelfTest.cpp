#include "panel/selftest/SelfTest.h"

#include "panel/control/BusyCursor.h"
#include "panel/control/Call.h"
#include "panel/control/Help.h"
#include "panel/control/OutputArea.h"
#include "panel/control/StringTable.h"
#include "panel/selftest/SelfTestTable.h"
#include "panel/selftest/SelfTestTemplate.h"

namespace panel {

namespace {

constexpr ListColumn kColumns[] = {{"Self-test", 150, Alignment::Left},
                                   {"Status", 120, Alignment::Left}};
constexpr int kStatusColumn = 1;

}

CSelfTest::CSelfTest(const std::shared_ptr<contract::ISelfTestResults>& results,
                     PanelServices& services, CHelp& help)
    : m_results(results), m_services(services), m_help(help) {}

void CSelfTest::OnInit(IView& view) {
    m_view = &view;
    int index = 0;
    for (const ListColumn& column : kColumns) {
        view.InsertColumn(kSelfTestList, index++, column);
    }
    const contract::Status status = FillList(view);
    if (status.IsFailure()) {
        m_services.output.ReportError(LoadPanelString(StringId::CannotGetSelfTestResults),
                                      "Self-test results", status);
    }
}

contract::Status CSelfTest::FillList(IView& view) {
    const BusyCursor busy(m_services.toolkit);
    int index = 0;
    for (const SelfTestRow& test : SelfTestRows()) {
        std::int32_t code = 0;
        const contract::Status status =
            Call(m_results, &contract::ISelfTestResults::GetResult, test.test, code);
        if (status.IsFailure()) {
            return status;
        }
        const int row = view.InsertRow(kSelfTestList, index++, test.label);
        view.SetCell(kSelfTestList, row, kStatusColumn, DescribeResult(code).text);
    }
    return contract::kSuccess;
}

void CSelfTest::OnCommand(ControlId id) {
    if (id == kOkButton || id == kCancelButton) {
        m_view->EndDialog(id);
    }
}

void CSelfTest::OnHelp(std::uint32_t context) { m_help.ShowHelp(context); }

}
