#pragma once

#include "contract/EventSource.h"
#include "contract/device/ExternalStorages.h"
#include "contract/device/FileInfo.h"
#include "contract/device/FileListing.h"
#include "contract/device/FreeResources.h"
#include "contract/device/HardwareInfo.h"
#include "contract/device/Krx10CommunicationConfiguration.h"
#include "contract/device/Krx10Control.h"
#include "contract/device/Krx20SwInfo.h"
#include "contract/device/ProgrammingDeviceControl.h"
#include "contract/device/ProgrammingDeviceControlEvents.h"
#include "contract/device/ProgrammingDeviceSubsystem.h"
#include "contract/device/SelfTestResults.h"
#include "contract/device/SoftwareInfo.h"
#include "contract/host/Connection.h"
#include "contract/host/Context.h"
#include "contract/host/ExtConnectionEvents.h"
#include "contract/host/HostViewControl.h"
#include "contract/host/MessageService.h"
#include "contract/host/ProductDetection.h"
#include "contract/host/Subsystem.h"
#include "contract/host/SubsystemAccess.h"

#include <memory>

/// Makers of the forwarders, one for each interface that can be wrapped. They make a new one each
/// time; CWrapperRegistry::Wrap, which calls them, finds those that live.
namespace interception {

class CWrapperRegistry;
using RegistryReference = std::shared_ptr<CWrapperRegistry>;
template <class Interface>
using Reference = std::shared_ptr<Interface>;
Reference<contract::_IExtConnectionEvents>
    MakeForwarder(RegistryReference, Reference<contract::_IExtConnectionEvents>);
Reference<contract::_IProgrammingDeviceControlEvents>
    MakeForwarder(RegistryReference, Reference<contract::_IProgrammingDeviceControlEvents>);
Reference<contract::IBaseObject<contract::_IExtConnectionEvents>>
    MakeForwarder(RegistryReference,
                  Reference<contract::IBaseObject<contract::_IExtConnectionEvents>>);
Reference<contract::IBaseObject<contract::_IProgrammingDeviceControlEvents>>
    MakeForwarder(RegistryReference,
                  Reference<contract::IBaseObject<contract::_IProgrammingDeviceControlEvents>>);
Reference<contract::IEventSource<contract::_IExtConnectionEvents>>
    MakeForwarder(RegistryReference,
                  Reference<contract::IEventSource<contract::_IExtConnectionEvents>>);
Reference<contract::IEventSource<contract::_IProgrammingDeviceControlEvents>>
    MakeForwarder(RegistryReference,
                  Reference<contract::IEventSource<contract::_IProgrammingDeviceControlEvents>>);
Reference<contract::IConnection> MakeForwarder(RegistryReference, Reference<contract::IConnection>);
Reference<contract::IConnectionState> MakeForwarder(RegistryReference,
                                                    Reference<contract::IConnectionState>);
Reference<contract::IContext> MakeForwarder(RegistryReference, Reference<contract::IContext>);
Reference<contract::IExternalStorages> MakeForwarder(RegistryReference,
                                                     Reference<contract::IExternalStorages>);
Reference<contract::IFileInfo> MakeForwarder(RegistryReference, Reference<contract::IFileInfo>);
Reference<contract::IFileListing> MakeForwarder(RegistryReference,
                                                Reference<contract::IFileListing>);
Reference<contract::IFreeResources> MakeForwarder(RegistryReference,
                                                  Reference<contract::IFreeResources>);
Reference<contract::IHardwareInfo> MakeForwarder(RegistryReference,
                                                 Reference<contract::IHardwareInfo>);
Reference<contract::IHostViewControl> MakeForwarder(RegistryReference,
                                                    Reference<contract::IHostViewControl>);
Reference<contract::IKrx10CommunicationConfiguration>
    MakeForwarder(RegistryReference, Reference<contract::IKrx10CommunicationConfiguration>);
Reference<contract::IKrx10CommunicationConfiguration2>
    MakeForwarder(RegistryReference, Reference<contract::IKrx10CommunicationConfiguration2>);
Reference<contract::IKrx10Control> MakeForwarder(RegistryReference,
                                                 Reference<contract::IKrx10Control>);
Reference<contract::IKrx20SwInfo> MakeForwarder(RegistryReference,
                                                Reference<contract::IKrx20SwInfo>);
Reference<contract::IMessageService> MakeForwarder(RegistryReference,
                                                   Reference<contract::IMessageService>);
Reference<contract::IProductDetection> MakeForwarder(RegistryReference,
                                                     Reference<contract::IProductDetection>);
Reference<contract::IProductDetectionControl>
    MakeForwarder(RegistryReference, Reference<contract::IProductDetectionControl>);
Reference<contract::IProductInformation> MakeForwarder(RegistryReference,
                                                       Reference<contract::IProductInformation>);
Reference<contract::IProgrammingDeviceControl>
    MakeForwarder(RegistryReference, Reference<contract::IProgrammingDeviceControl>);
Reference<contract::IProgrammingDeviceSubsystem>
    MakeForwarder(RegistryReference, Reference<contract::IProgrammingDeviceSubsystem>);
Reference<contract::ISelfTestResults> MakeForwarder(RegistryReference,
                                                    Reference<contract::ISelfTestResults>);
Reference<contract::ISoftwareInfo> MakeForwarder(RegistryReference,
                                                 Reference<contract::ISoftwareInfo>);
Reference<contract::ISubsystem> MakeForwarder(RegistryReference, Reference<contract::ISubsystem>);
Reference<contract::ISubsystemAccess> MakeForwarder(RegistryReference,
                                                    Reference<contract::ISubsystemAccess>);
Reference<contract::ITypeInformation> MakeForwarder(RegistryReference,
                                                    Reference<contract::ITypeInformation>);
}
