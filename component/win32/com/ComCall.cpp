#include "component/win32/com/ComCall.h"

#include "component/win32/com/Bstr.h"

#include <string>

namespace component {

namespace {

void Leave(REFIID interfaceIdentifier, const std::string& description) {
    ComPtr<ICreateErrorInfo> made;
    ComPtr<IErrorInfo> info;
    if (description.empty() || FAILED(CreateErrorInfo(made.GetAddressOf()))) {
        return;
    }
    made->SetGUID(interfaceIdentifier);
    made->SetDescription(CBstr(description).Get());
    if (SUCCEEDED(made.As(&info))) {
        SetErrorInfo(0, info.Get());
    }
}

}

void ClearComErrorInfo() { SetErrorInfo(0, nullptr); }

void TakeComErrorInfo() {
    ComPtr<IErrorInfo> info;
    CBstr description;
    contract::ClearErrorInfo();
    if (GetErrorInfo(0, info.GetAddressOf()) == S_OK &&
        SUCCEEDED(info->GetDescription(description.Receive()))) {
        contract::SetErrorInfo(description.ToText());
    }
}

void LeaveComErrorInfo(REFIID interfaceIdentifier) {
    Leave(interfaceIdentifier, contract::TakeErrorInfo());
}

// The text itself may find no memory; the failure is reported without it then.
void LeaveComErrorInfo(REFIID interfaceIdentifier, const std::exception& exception) {
    try {
        Leave(interfaceIdentifier, exception.what());
    } catch (const std::exception&) {
        ClearComErrorInfo();
    }
}

}
