#include "tests/sweeps/Plan.h"

namespace sweeps {

namespace {

const char* Name(Moment moment) {
    switch (moment) {
    case Moment::BeforeCall:
        return "before call ";
    case Moment::AfterCall:
        return "after call ";
    case Moment::WhileBoxOpen:
        return "while box is open ";
    case Moment::WhileDialogOpen:
        return "while dialog is open ";
    }
    return "";
}

std::string Describe(const Answers& answers) {
    const NetworkAnswer& network = answers.network;
    std::string text = "answered: question " + std::to_string(answers.question) + ", command " +
                       std::to_string(answers.command) + ", file " +
                       std::to_string(static_cast<int>(answers.file)) + ", network " +
                       (network.isConfirmed ? "OK" : "Cancel") + (network.usesDhcp ? " DHCP" : "") +
                       (network.formatsFlash ? " Flash" : "") +
                       (network.formatsPcCard ? " PCCard" : "") +
                       (answers.getsNoPrompt ? ", no menu and no dialog" : "") + ", offers";
    for (const std::int32_t offer : answers.offers) {
        text += " " + std::to_string(offer);
    }
    return text + "; ";
}

}

std::string Describe(const Plan& plan) {
    std::string text;
    for (const SpoiltCall& spoilt : plan.spoilt) {
        const char* const how[] = {" fails; ", " fails silently; ", " delivers null; "};
        text += "call " + std::to_string(spoilt.call) + how[static_cast<int>(spoilt.how)];
    }
    if (plan.lossInCall) {
        text += "device lost in call " + std::to_string(*plan.lossInCall) + "; ";
    }
    if (plan.failMessageService) {
        text += "message service fails; ";
    }
    if (plan.intrusion) {
        text += std::string(plan.intrusion->event->name) + " " + Name(plan.intrusion->moment) +
                std::to_string(plan.intrusion->number) + "; ";
    }
    if (plan.updateStatus != contract::kSuccess) {
        text += "update succeeds with " + std::to_string(plan.updateStatus.Code()) + "; ";
    }
    if (plan.answers) {
        text += Describe(*plan.answers);
    }
    return text.empty() ? "nothing goes wrong" : text;
}

}
