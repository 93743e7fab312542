#include "tests/sweeps/Events.h"
#include "tests/sweeps/SweepTest.h"

namespace {

using namespace sweeps;

/// The commands that a user gives.
///
/// Most end with a refresh or a listing, which has sweeps of its own: of its calls one in so many
/// is disturbed here, another one on each model.
class CommandSweepTest : public SweepTest {
protected:
    /// Two models take the same way through every command as their neighbours, the KRX-8 and the
    /// KRX-21.
    static bool IsLikeAnotherModel(const Setting& setting) {
        return setting.model == simulator::kKrx8c || setting.model == simulator::kKrx20;
    }

    /// The calls to be disturbed.
    std::vector<std::size_t> Picked(const CSweep& sweep) const {
        constexpr std::size_t kOneInSoMany = 37;
        std::vector<std::size_t> picked;
        for (std::size_t call = 1; call <= sweep.Calls().size(); ++call) {
            if (!sweep.IsOfRefresh(call) || (call + Model()) % kOneInSoMany == 0) {
                picked.push_back(call);
            }
        }
        return picked;
    }

    /// Lets that call go wrong: in every way, or, where other settings take the same way through
    /// the command, in one way, another one for each call.
    void Spoil(CSweep& sweep, std::size_t call) const {
        const bool isLikeAnother = IsLikeAnotherModel(GetParam()) || !sweep.IsInFirstMode();
        const auto isDue = [&](std::size_t way) {
            return !isLikeAnother || (call + Model()) % 3 == way;
        };
        if (isDue(0)) {
            sweep.Run({.spoilt = {{call, Spoiling::Failure}}});
        }
        if (isDue(1)) {
            sweep.Run({.lossInCall = call});
        }
        if (isDue(2) && sweep.DeliversObject(call)) {
            sweep.Run({.spoilt = {{call, Spoiling::Null}}});
        }
    }

    /// Another event at each turn, and another one on each model.
    const Event& NextEvent() {
        static const std::vector<const Event*> events = EventsAndInterventions();
        return *events[(m_turn++ + Model()) % events.size()];
    }

    CSweep SweepInFirstMode() const { return SweepInMode(GetParam().scenario->modes.front()); }
    std::size_t Model() const { return static_cast<std::size_t>(GetParam().model); }

private:
    std::size_t m_turn = 0;
};

TEST_P(CommandSweepTest, EachSpoiltCallIsReportedAsDescribed) {
    InEachMode([this](CSweep& sweep) {
        for (const std::size_t call : Picked(sweep)) {
            Spoil(sweep, call);
        }
        sweep.Run({.spoilt = {{sweep.Calls().size() + 1, Spoiling::Failure}}});
    });
}

INSTANTIATE_TEST_SUITE_P(, CommandSweepTest, testing::ValuesIn(CommandSettings()), SettingName);

/// Where no other model stands for this one, to save time.
class IntrusionSweepTest : public CommandSweepTest {
public:
    static std::vector<Setting> Settings() {
        std::vector<Setting> settings = CommandSettings();
        std::erase_if(settings, IsLikeAnotherModel);
        return settings;
    }
};

/// Before or after each call, and in every second report, in turn.
TEST_P(IntrusionSweepTest, AnythingInsideCallsAndReportsIsHandledAtOnce) {
    CSweep sweep = SweepInFirstMode();
    for (const std::size_t call : Picked(sweep)) {
        const bool isOdd = (call + Model()) % 2 == 1;
        const Moment moment = isOdd ? Moment::BeforeCall : Moment::AfterCall;
        sweep.Run({.intrusion = Intrusion{moment, call, &NextEvent()}});
        Plan plan{.spoilt = {{call, Spoiling::Failure}}};
        const CSweep::Opened opened = sweep.OpenedWith(plan);
        if (isOdd && opened.boxAfterFault <= opened.boxes) {
            plan.intrusion = Intrusion{Moment::WhileBoxOpen, opened.boxAfterFault, &NextEvent()};
            sweep.Run(plan);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, IntrusionSweepTest, testing::ValuesIn(IntrusionSweepTest::Settings()),
                         SettingName);

/// On the first and the last model of each command, to save time, and on each of them with every
/// second event.
class PromptSweepTest : public CommandSweepTest {
protected:
    static void FireInEachPrompt(CSweep& sweep, const Event& event) {
        for (std::size_t box = 1; box <= sweep.Boxes(); ++box) {
            sweep.Run({.intrusion = Intrusion{Moment::WhileBoxOpen, box, &event}});
        }
        for (std::size_t dialog = 1; dialog <= sweep.Dialogs(); ++dialog) {
            sweep.Run({.intrusion = Intrusion{Moment::WhileDialogOpen, dialog, &event}});
        }
    }

    bool IsFirstModel() const { return GetParam().model == GetParam().scenario->models.front(); }
    bool IsLastModel() const { return GetParam().model == GetParam().scenario->models.back(); }
};

TEST_P(PromptSweepTest, AnythingInsideEachPromptIsHandledAtOnce) {
    CSweep sweep = SweepInFirstMode();
    std::size_t number = 0;
    for (const Event* event : EventsAndInterventions()) {
        const bool isEven = ++number % 2 == 0;
        if (isEven ? IsFirstModel() : IsLastModel()) {
            FireInEachPrompt(sweep, *event);
        }
    }
}

std::vector<Setting> FirstAndLastModels() {
    std::vector<Setting> settings = CommandSettings();
    std::erase_if(settings, [](const Setting& each) {
        const auto& models = each.scenario->models;
        return each.model != models.front() && each.model != models.back();
    });
    return settings;
}

INSTANTIATE_TEST_SUITE_P(, PromptSweepTest, testing::ValuesIn(FirstAndLastModels()), SettingName);

/// Every way in which a prompt can be answered.
class AnswerSweepTest : public CommandSweepTest {
protected:
    using Kind = CExpectation::Prompt::Kind;

    static std::vector<Answers> Other(const CSweep& sweep) {
        std::vector<Answers> all;
        AddQuestion(all, sweep);
        AddOffers(all, sweep);
        AddFile(all, sweep);
        AddNetwork(all, sweep);
        if (sweep.Shows(Kind::Menu)) {
            all.push_back(sweep.UserAnswers());
            all.back().command = 0;
        }
        return all;
    }

private:
    static constexpr std::int32_t kEscape = 0;
    static constexpr std::int32_t kCancel = 2;
    static constexpr std::int32_t kYes = 6;
    static constexpr std::int32_t kNo = 7;

    static void AddQuestion(std::vector<Answers>& all, const CSweep& sweep) {
        if (sweep.AsksQuestion()) {
            for (const std::int32_t answer : {kNo, kEscape}) {
                all.push_back(sweep.UserAnswers());
                all.back().question = answer;
            }
        }
    }

    static void AddOffers(std::vector<Answers>& all, const CSweep& sweep) {
        using Offers = std::vector<std::int32_t>;
        if (sweep.Shows(Kind::Offer)) {
            for (const Offers& offers : {Offers{kNo}, Offers{kCancel}, Offers{kYes, kNo},
                                         Offers{kYes, kCancel}, Offers{kYes, kYes, kNo}}) {
                all.push_back(sweep.UserAnswers());
                all.back().offers = offers;
            }
        }
    }

    static void AddFile(std::vector<Answers>& all, const CSweep& sweep) {
        if (!sweep.Shows(Kind::OpenFile) && !sweep.Shows(Kind::SaveFile)) {
            return;
        }
        constexpr int kPhoneFileUpload = 1;
        std::vector<FileChoice> choices{FileChoice::Cancelled, FileChoice::Failed};
        if (sweep.Shows(Kind::SaveFile)) {
            choices.push_back(FileChoice::InNoFolder);
        }
        if (sweep.UserAnswers().command == kPhoneFileUpload) {
            choices.push_back(FileChoice::WithoutMethod);
            choices.push_back(FileChoice::WithoutDestination);
        }
        for (const FileChoice choice : choices) {
            all.push_back(sweep.UserAnswers());
            all.back().file = choice;
        }
    }

    static void AddNetwork(std::vector<Answers>& all, const CSweep& sweep) {
        if (sweep.Shows(Kind::Network)) {
            for (const NetworkAnswer& answer :
                 {NetworkAnswer{.isConfirmed = false}, NetworkAnswer{.usesDhcp = true},
                  NetworkAnswer{.isConfirmed = false, .usesDhcp = true, .formatsFlash = true},
                  NetworkAnswer{.usesDhcp = true, .formatsFlash = true},
                  NetworkAnswer{.formatsPcCard = true}}) {
                all.push_back(sweep.UserAnswers());
                all.back().network = answer;
            }
        }
    }
};

TEST_P(AnswerSweepTest, EachAnswerIsFollowedAsDescribed) {
    CSweep sweep = SweepInFirstMode();
    sweep.Run({.failMessageService = true});
    for (const Answers& answers : Other(sweep)) {
        sweep.Run({.answers = answers});
        if (sweep.AsksQuestion()) {
            sweep.Run({.failMessageService = true, .answers = answers});
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, AnswerSweepTest, testing::ValuesIn(CommandSettings()), SettingName);

}
