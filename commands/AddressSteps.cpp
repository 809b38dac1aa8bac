// <StreamAddr IP="192.0.2.17" Port="9000" IPProtoVar="4" />

#include "commands/AddressSteps.h"

#include "core/Frame.h"

namespace frame
{

void writeAddress(TiXmlNode& parent, const char* name, const InetAddr& address)
{
    TiXmlElement& element = appendElement(parent, name);
    element.SetAttribute("IP", address.getIP());
    setInt(element, "Port", address.getPORT());
    setInt(element, "IPProtoVar", address.getIPProtoVer()); // the peers' spelling
}

void readAddress(const TiXmlElement& parent, const char* name, InetAddr& address)
{
    const TiXmlElement* element = parent.FirstChildElement(name);
    if (element == nullptr) return;

    address.setIP(textOf(*element, "IP", address.getIP()).c_str());
    address.setPORT(uint16Of(*element, "Port", address.getPORT()));
    address.setIPProtoVer(intOf(*element, "IPProtoVar", address.getIPProtoVer()));
}

} // namespace frame
