#include "tests/sweeps/Sweep.h"

#include "interception/Operations.h"
#include "tests/sweeps/Figures.h"

#include <algorithm>

namespace sweeps {

CSweep::CSweep(const Scenario& scenario, std::int32_t model, std::int32_t mode)
    : m_scenario(scenario), m_model(model), m_device(MakeDevice(scenario, model, mode)) {
    ++TheFigures().scenarios;
    CExpectation expected(m_device, m_scenario.packageVersion);
    m_scenario.setUp(expected);
    static_cast<void>(expected.Take());
    expected.Arrange(WithAnswers({}));
    m_scenario.action(expected);
    m_boxes = expected.Boxes();
    m_dialogs = expected.Dialogs();
    m_callsOfRefresh = expected.CallsOfRefresh();
    m_prompts = expected.Prompts();
    const Observation seen = expected.Take();
    m_calls = seen.calls;
    m_asksQuestion = std::ranges::count(seen.messages, 0x24u, &support::Shown::style) > 0;
    Run({});
}

bool CSweep::Shows(CExpectation::Prompt::Kind kind) const {
    return std::ranges::find(m_prompts, kind, &CExpectation::Prompt::kind) != m_prompts.end();
}

bool CSweep::IsOfRefresh(std::size_t call) const {
    return std::ranges::binary_search(m_callsOfRefresh, call);
}

bool CSweep::DeliversObject(std::size_t call) const {
    return interception::FindOperation(m_calls[call - 1])->delivers ==
           interception::Delivers::Object;
}

std::string CSweep::Describe(const Plan& plan) const {
    std::string text = std::string(m_scenario.name) + ", model " + std::to_string(m_model) +
                       ", mode " + std::to_string(m_device.mode) + ": " + sweeps::Describe(plan);
    const auto name = [&](std::size_t call) {
        if (call <= m_calls.size()) {
            text += "(call " + std::to_string(call) + " is " + std::string(m_calls[call - 1]) + ")";
        }
    };
    for (const SpoiltCall& spoilt : plan.spoilt) {
        name(spoilt.call);
    }
    if (plan.lossInCall) {
        name(*plan.lossInCall);
    }
    if (plan.intrusion && (plan.intrusion->moment == Moment::BeforeCall ||
                           plan.intrusion->moment == Moment::AfterCall)) {
        name(plan.intrusion->number);
    }
    return text;
}

void CSweep::Run(const Plan& plan) {
    if (testing::Test::HasFailure()) {
        return; // one failing run is told; the thousands after it would only bury it
    }
    SCOPED_TRACE(Describe(plan));
    ++TheFigures().runs;
    Pair pair(m_device, m_scenario.packageVersion);
    Play(pair, {}, m_scenario.setUp);
    if (!m_undisturbed) {
        Compare(pair, "setting up");
    } else {
        pair.ForgetWhatWasSeen();
    }
    Play(pair, plan, m_scenario.action);
    EXPECT_EQ(pair.actual.CallsSpoilt(), pair.expected.CallsSpoilt());
    TheFigures().callsSpoilt += plan.intrusion ? plan.spoilt.size() : pair.expected.CallsSpoilt();
    TheFigures().events += plan.intrusion ? 1 : 0;
    ExpectLeftAsFound(Compare(pair, "acting"), plan);
    PlayAgain(pair, plan);
    pair.actual.End();
    TheFigures().leaks += pair.actual.LeftBehind();
}

void CSweep::Play(Pair& pair, const Plan& plan, void (*act)(IStage&)) {
    const Plan answered = WithAnswers(plan);
    pair.expected.Arrange(answered);
    act(pair.expected);
    pair.actual.Arrange(answered, pair.expected.Prompts());
    act(pair.actual);
    TheFigures().promptsAnswered += pair.expected.Boxes() + pair.expected.Dialogs();
}

Observation CSweep::Compare(Pair& pair, const char* when) {
    const Observation expected = pair.expected.Take();
    const Observation actual = pair.actual.Take();
    EXPECT_TRUE(expected == actual) << "after " << when << ":\n" << Difference(expected, actual);
    EXPECT_EQ(pair.actual.CursorDepth(), 0) << "after " << when;
    return actual;
}

void CSweep::ExpectLeftAsFound(const Observation& seen, const Plan& plan) const {
    if (seen.kept) {
        EXPECT_TRUE(seen.kept->refreshAllowed);
    }
    // The call that switches polling on again may be the one that was spoilt.
    if (plan.spoilt.empty()) {
        EXPECT_EQ(seen.isPolling, PollsAtFirst(m_device));
    }
}

void CSweep::PlayAgain(Pair& pair, const Plan& plan) {
    pair.expected.InsertDevice();
    pair.actual.InsertDevice();
    if (plan.intrusion && plan.intrusion->event->changesMode) {
        pair.expected.RaiseMode(m_device.mode);
        pair.actual.RaiseMode(m_device.mode);
    }
    Play(pair, {}, m_scenario.again);
    const Observation seen = Compare(pair, "going on undisturbed");
    if (!m_undisturbed) {
        m_undisturbed = seen.picture;
        m_undisturbedKept = seen.kept;
    }
    if (pair.expected.CanShowADevice()) {
        ASSERT_TRUE(seen.picture && seen.kept);
        EXPECT_EQ(Difference(*m_undisturbed, *seen.picture), "");
        EXPECT_EQ(*m_undisturbedKept, *seen.kept);
    }
}

CSweep::Opened CSweep::OpenedWith(const Plan& plan) const {
    CExpectation expected(m_device, m_scenario.packageVersion);
    m_scenario.setUp(expected);
    expected.Arrange(WithAnswers(plan));
    m_scenario.action(expected);
    return {expected.Boxes(), expected.Dialogs(), expected.BoxAfterFault()};
}

std::vector<std::size_t> CSweep::OwnCallsWith(const Plan& plan) const {
    CExpectation expected(m_device, m_scenario.packageVersion);
    m_scenario.setUp(expected);
    static_cast<void>(expected.Take());
    expected.Arrange(WithAnswers(plan));
    m_scenario.action(expected);
    const std::size_t calls = expected.Take().calls.size();
    std::vector<std::size_t> own;
    for (std::size_t call = 1; call <= calls; ++call) {
        if (!std::ranges::binary_search(expected.CallsOfRefresh(), call)) {
            own.push_back(call);
        }
    }
    return own;
}

Plan CSweep::WithAnswers(Plan plan) const {
    if (!plan.answers) {
        plan.answers = m_scenario.answers;
    }
    return plan;
}

}
