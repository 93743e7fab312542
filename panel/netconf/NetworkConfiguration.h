#pragma once

#include "contract/Status.h"
#include "panel/control/PanelServices.h"
#include "panel/control/StringTable.h"
#include "panel/netconf/KRX10Conf.h"

#include <memory>

namespace contract {
class IKrx10CommunicationConfiguration2;
class IKrx10Control;
}

namespace panel {

class CHelp;
class CRefreshSequence;

/// The KRX10 Conf command. User-interface thread only.
class CNetworkConfiguration {
public:
    CNetworkConfiguration(PanelServices& services, CHelp& help, CRefreshSequence& refresh)
        : m_services(services), m_help(help), m_refresh(refresh) {}

    /// Lets the user change the network values and format media, and carries that out. The first
    /// failing call is reported and ends it, except that media once to be formatted are brought
    /// back into normal operation and tested in every case, followed by a refresh. Phones are not
    /// polled while media are formatted.
    void Configure();

private:
    using Control = std::shared_ptr<contract::IKrx10Control>;
    using Configuration = std::shared_ptr<contract::IKrx10CommunicationConfiguration2>;

    void Apply(const NetworkChoice& choice);
    bool Format(const Control& control, const NetworkChoice& choice);
    bool Write(const Control& control, const NetworkChoice& choice, bool isAddressNew);
    void ReadBack(const Control& control);
    void BringBackMedia(const NetworkChoice& choice);
    bool ObtainConfiguration(const Control& control, Configuration& configuration);
    contract::Status ReadValues(const Configuration& configuration);
    /// True for a success; a failure has been reported.
    bool Passes(contract::Status status, StringId failureText);

    PanelServices& m_services;
    CHelp& m_help;
    CRefreshSequence& m_refresh;
};

}
