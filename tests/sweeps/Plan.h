#pragma once

#include "contract/Status.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace sweeps {

class IStage;

/// How a call that was picked fails.
inline constexpr auto kFaultStatus = contract::Status::FromBits(0x800700AA);
inline constexpr const char* kFaultDescription = "The line is noisy.";

/// How the system fails that cannot make a menu or a dialog.
inline constexpr int kNoPromptError = 8;

/// How every call fails that a lost device should have answered.
inline constexpr auto kLostStatus = contract::Status::FromBits(0x8007048F);
inline constexpr const char* kLostDescription = "The device is gone.";

/// How a message service fails that cannot show anything.
inline constexpr auto kNoDisplayStatus = contract::Status::FromBits(0x80040155);

/// What the user does with an open or save dialog: takes a file, cancels, or sees it fail. A file
/// may lie in a folder that there is not or have no path at all, and options may be left unchosen
/// or be chosen in vain, since the system cannot tell which it was.
enum class FileChoice {
    Taken,
    Cancelled,
    Failed,
    WithoutPath,
    InNoFolder,
    WithoutMethod,
    WithoutDestination,
    UnreadableMethod,
    UnreadableDestination
};

/// What the user does with the network dialog: changes address and description and confirms, unless
/// it is said.
struct NetworkAnswer {
    bool isConfirmed = true;
    bool usesDhcp = false;
    bool formatsFlash = false;
    bool formatsPcCard = false;
};

/// How the user answers whatever the panel asks in one run.
struct Answers {
    /// Yes, No, or 0 for a box that is left by Escape.
    std::int32_t question = 6;
    /// Of the offers of an update, one after the other; those that come later are declined.
    std::vector<std::int32_t> offers = {};
    /// From the file menu, if it has it; 0 leaves the menu.
    int command = 0;
    FileChoice file = FileChoice::Taken;
    NetworkAnswer network = {};
    /// The system can make neither the file menu nor a dialog of the panel.
    bool getsNoPrompt = false;
};

/// Something that host or device do of their own accord.
struct Event {
    const char* name;
    void (*raise)(IStage&);
    /// The panel then takes another mode for the device's.
    bool changesMode = false;
};

/// The call fails, with a description or without one, or succeeds with a null object.
enum class Spoiling { Failure, FailureWithoutDescription, Null };

/// Calls count from 1, from the arranging of the plan on.
struct SpoiltCall {
    std::size_t call;
    Spoiling how;
};

enum class Moment { BeforeCall, AfterCall, WhileBoxOpen, WhileDialogOpen };

/// An event in the midst of things: inside the call of that number, or while the box, or the dialog
/// or menu, of that number is open.
struct Intrusion {
    Moment moment;
    std::size_t number;
    const Event* event;
};

/// What goes wrong in one run; nothing unless it is said.
struct Plan {
    std::vector<SpoiltCall> spoilt = {};
    /// Connection state 5 is raised inside that call and the device is lost.
    std::optional<std::size_t> lossInCall = {};
    bool failMessageService = false;
    std::optional<Intrusion> intrusion = {};
    /// Those of the scenario, unless it is said.
    std::optional<Answers> answers = {};
    /// How the device succeeds with an update.
    contract::Status updateStatus = contract::kSuccess;
};

/// The plan in words.
std::string Describe(const Plan& plan);

}
