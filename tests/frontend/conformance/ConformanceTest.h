#pragma once

#include "tests/frontend/conformance/FrontEndDriver.h"
#include "tests/frontend/conformance/RecordingHandler.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace conformance {

using Events = std::vector<std::string>;
using Rows = std::vector<int>;

inline constexpr const char* kReplacement = "\xEF\xBF\xBD";

// The controls of kSmallTemplate.
inline constexpr panel::ControlId kFrame = 301;
inline constexpr panel::ControlId kCaption = 302;
inline constexpr panel::ControlId kField = 303;
inline constexpr panel::ControlId kNumber = 304;
inline constexpr panel::ControlId kManyList = 305;
inline constexpr panel::ControlId kOneList = 306;
inline constexpr panel::ControlId kLog = 307;
inline constexpr panel::ControlId kBar = 308;
inline constexpr panel::ControlId kFirstButton = 309;
inline constexpr panel::ControlId kDisabledButton = 310;
inline constexpr panel::ControlId kHiddenButton = 311;
inline constexpr panel::ControlId kSecondButton = 312;
inline constexpr panel::ControlId kDisabledList = 313;
inline constexpr panel::ControlId kCentred = 314;
inline constexpr panel::ControlId kEdit = 315;
inline constexpr panel::ControlId kAddress = 316;
inline constexpr panel::ControlId kCheck = 317;
inline constexpr panel::ControlId kChoices = 318;
inline constexpr panel::ControlId kIcon = 319;
/// An id that no control has.
inline constexpr panel::ControlId kMissing = 999;

/// One control of each kind and state, none of them on top of another.
extern const panel::DialogTemplate kSmallTemplate;
/// A field (401), OK (1, default) and Cancel (2, hidden).
extern const panel::DialogTemplate kDialogTemplate;
inline constexpr panel::ControlId kDialogField = 401;
/// One control of each kind that a user fills in (421 to 424), OK (1, default) and Cancel (2).
extern const panel::DialogTemplate kFormTemplate;
inline constexpr panel::ControlId kFormEdit = 421;
inline constexpr panel::ControlId kFormAddress = 422;
inline constexpr panel::ControlId kFormCheck = 423;
inline constexpr panel::ControlId kFormChoices = 424;
/// A label only.
extern const panel::DialogTemplate kBareDialogTemplate;

/// A fresh front end with one view in it.
class ConformanceTest : public testing::Test {
protected:
    /// Makes the test's view; its OnInit is already out of the recorded events.
    panel::IView& Show(const panel::DialogTemplate& dialogTemplate = kSmallTemplate);

    IViewUser& User() { return m_driver->UserOf(*m_view); }
    panel::IView& View() { return *m_view; }
    panel::IToolkit& Toolkit() { return m_driver->Toolkit(); }

    /// Two columns and rows "row 0", "row 1" ... with the cells "0", "1" ...
    void FillList(panel::ControlId list, int rows);
    /// Runs a dialog with the test's dialog handler.
    panel::DialogOutcome RunDialog(const panel::DialogTemplate& dialogTemplate = kDialogTemplate);
    /// Shows two boxes and destroys the test's view while the first one is open. Front ends that
    /// let controls end later than the view have ended them by the time the second one closes.
    void LoseViewInABox();

    std::unique_ptr<IFrontEndDriver> m_driver = MakeDriver();
    CRecordingHandler m_handler;
    CRecordingHandler m_dialogHandler;
    std::unique_ptr<panel::IView> m_view;
};

}
