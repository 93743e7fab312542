#include "tests/sweeps/OtherAnswers.h"

#include "tests/sweeps/Sweep.h"

#include <algorithm>
#include <cstdint>

namespace sweeps {

namespace {

using Kind = CExpectation::Prompt::Kind;

constexpr std::int32_t kEscape = 0;
constexpr std::int32_t kCancel = 2;
constexpr std::int32_t kYes = 6;
constexpr std::int32_t kNo = 7;

void AddQuestion(std::vector<Answers>& all, const CSweep& sweep) {
    if (sweep.AsksQuestion()) {
        for (const std::int32_t answer : {kNo, kEscape}) {
            all.push_back(sweep.UserAnswers());
            all.back().question = answer;
        }
    }
}

void AddOffers(std::vector<Answers>& all, const CSweep& sweep) {
    using Offers = std::vector<std::int32_t>;
    if (sweep.Shows(Kind::Offer)) {
        for (const Offers& offers : {Offers{kNo}, Offers{kCancel}, Offers{kYes, kNo},
                                     Offers{kYes, kCancel}, Offers{kYes, kYes, kNo}}) {
            all.push_back(sweep.UserAnswers());
            all.back().offers = offers;
        }
    }
}

void AddFile(std::vector<Answers>& all, const CSweep& sweep) {
    if (!sweep.Shows(Kind::OpenFile) && !sweep.Shows(Kind::SaveFile)) {
        return;
    }
    constexpr int kPhoneFileUpload = 1;
    std::vector<FileChoice> choices{FileChoice::Cancelled, FileChoice::Failed,
                                    FileChoice::WithoutPath};
    if (sweep.Shows(Kind::SaveFile)) {
        choices.push_back(FileChoice::InNoFolder);
    }
    if (sweep.UserAnswers().command == kPhoneFileUpload) {
        choices.insert(choices.end(),
                       {FileChoice::WithoutMethod, FileChoice::WithoutDestination,
                        FileChoice::UnreadableMethod, FileChoice::UnreadableDestination});
    }
    for (const FileChoice choice : choices) {
        all.push_back(sweep.UserAnswers());
        all.back().file = choice;
    }
}

/// Confirmed and cancelled, with and without DHCP and each of the boxes.
void AddNetwork(std::vector<Answers>& all, const CSweep& sweep) {
    if (!sweep.Shows(Kind::Network)) {
        return;
    }
    for (unsigned ticks = 0; ticks < 16; ++ticks) {
        all.push_back(sweep.UserAnswers());
        all.back().network = {.isConfirmed = (ticks & 1) == 0,
                              .usesDhcp = (ticks & 2) != 0,
                              .formatsFlash = (ticks & 4) != 0,
                              .formatsPcCard = (ticks & 8) != 0};
    }
}

}

std::vector<Answers> OtherAnswers(const CSweep& sweep) {
    std::vector<Answers> all;
    AddQuestion(all, sweep);
    AddOffers(all, sweep);
    AddFile(all, sweep);
    AddNetwork(all, sweep);
    if (sweep.Shows(Kind::Menu)) {
        all.push_back(sweep.UserAnswers());
        all.back().command = 0;
    }
    constexpr Kind kOwnPrompts[] = {Kind::SelfTests, Kind::Offer, Kind::Network, Kind::Menu};
    if (std::ranges::any_of(kOwnPrompts, [&](Kind kind) { return sweep.Shows(kind); })) {
        all.push_back(sweep.UserAnswers());
        all.back().getsNoPrompt = true;
    }
    return all;
}

}
