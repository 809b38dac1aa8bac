// <User SourceId="S-9" HostOrderIP="192.0.2.9" Port="40999" UserName="operator" Password="not told" />
//
// The peers call the address "HostOrderIP", but what stands there is text, and has no byte order.

#include "security/UserXml.h"

#include "core/Frame.h"

UserXml::UserXml() = default;

UserXml::~UserXml() = default;

void UserXml::createXmlNode()
{
    writeElement(document_, user_);
}

bool UserXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool UserXml::parseXmlString()
{
    return frame::parseRoot(text_, "User", document_, node_) && parseXmlNode();
}

bool UserXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, user_);
}

TiXmlElement& UserXml::writeElement(TiXmlNode& parent, const User& user)
{
    TiXmlElement& element = frame::appendElement(parent, "User");
    frame::setText(element, "SourceId", user.getSourceId());
    frame::setText(element, "HostOrderIP", user.getIP());
    frame::setInt(element, "Port", user.getPort());
    frame::setText(element, "UserName", user.getUserName());
    frame::setText(element, "Password", user.getPassword());
    return element;
}

bool UserXml::readElement(const TiXmlElement& element, User& user)
{
    user.setSourceId(frame::textOf(element, "SourceId", ""));
    user.setIP(frame::textOf(element, "HostOrderIP", ""));
    user.setPort(frame::uint16Of(element, "Port", 0));
    user.setUserName(frame::textOf(element, "UserName", ""));
    user.setPassword(frame::textOf(element, "Password", ""));
    return true;
}
