// <SMTPParam SMTPEnableFlag="true" UseDefaultSMTPServerFlag="false" ... TransportMode="3">
//     <RecipientEmailAddressList>
//         <RecipientEmailAddress RecipientEmailAddress="guard@example.org" />
//     </RecipientEmailAddressList>
// </SMTPParam>

#include "network/SMTPParamXml.h"

#include "core/Frame.h"

#include <utility>

bool SMTPParamXml::createDomainXmlNode(const SMTPParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("SMTPEnableFlag", param.getSMTPEnableFlag());
    node->setProperty("UseDefaultSMTPServerFlag", param.getUseDefaultSMTPServerFlag());
    node->setProperty("SMTPServerAddr", param.getSMTPServerAddr());
    node->setProperty("SMTPServerPort", param.getSMTPServerPort());
    node->setProperty("SMTPUserName", param.getSMTPUserName());
    node->setProperty("SMTPPassword", param.getSMTPPassword());
    node->setProperty("SenderEmailAddress", param.getSenderEmailAddress());
    node->setProperty("MailLanguage", param.getMailLanguage());
    node->setProperty("AttachmentImageQuality", param.getAttachmentImageQuality());
    node->setProperty("TransportMode", param.getTransportMode());

    SafePointer<DomainXmlNode> recipients = frame::appendNode(node, "RecipientEmailAddressList");
    for (const std::string& address : param.getRecipientEmailAddressList())
        frame::appendNode(recipients, "RecipientEmailAddress")->setProperty("RecipientEmailAddress", address);
    return true;
}

bool SMTPParamXml::createDomainXmlNode(const std::vector<SMTPParam>& params, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const SMTPParam& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "SMTPParam");
        if (!createDomainXmlNode(param, item)) return false;
    }
    return true;
}

bool SMTPParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SMTPParam& param) const
{
    if (!node) return false;

    param.setSMTPEnableFlag(frame::flagProperty(node, "SMTPEnableFlag", false,
                                                "SMTPParamXml::parseDomainXmlNode get SMTPEnableFlag failed "));
    param.setUseDefaultSMTPServerFlag(
        frame::flagProperty(node, "UseDefaultSMTPServerFlag", false,
                            "SMTPParamXml::parseDomainXmlNode get UseDefaultSMTPServerFlag failed "));
    param.setSMTPServerAddr(
        frame::textProperty(node, "SMTPServerAddr", "", "SMTPParamXml::parseDomainXmlNode get SMTPServerAddr failed "));
    param.setSMTPServerPort(frame::uint16Property(node, "SMTPServerPort", 0,
                                                  "SMTPParamXml::parseDomainXmlNode get SMTPServerPort failed "));
    param.setSMTPUserName(
        frame::textProperty(node, "SMTPUserName", "", "SMTPParamXml::parseDomainXmlNode get SMTPUserName failed "));
    param.setSMTPPassword(
        frame::textProperty(node, "SMTPPassword", "", "SMTPParamXml::parseDomainXmlNode get SMTPPassword failed "));
    param.setSenderEmailAddress(frame::textProperty(node, "SenderEmailAddress", "",
                                                    "SMTPParamXml::parseDomainXmlNode get SenderEmailAddress failed "));
    param.setMailLauguage(
        frame::intProperty(node, "MailLanguage", 0, "SMTPParamXml::parseDomainXmlNode get MailLanguage failed "));
    param.setAttachmentImageQuality(frame::intProperty(
        node, "AttachmentImageQuality", 0, "SMTPParamXml::parseDomainXmlNode get AttachmentImageQuality failed "));
    param.setTransportMode(
        frame::intProperty(node, "TransportMode", 0, "SMTPParamXml::parseDomainXmlNode get TransportMode failed "));

    std::vector<std::string> recipients;
    SafePointer<DomainXmlNode> list;
    if (node->getConfigNode("RecipientEmailAddressList", list))
    {
        const TiXmlElement* item = frame::firstItem(*list->getXmlNode(), "RecipientEmailAddress");
        for (; item != nullptr; item = item->NextSiblingElement("RecipientEmailAddress"))
        {
            const char* address = frame::attributeOf(*item, "RecipientEmailAddress");
            if (address == nullptr) return false;
            recipients.emplace_back(address);
        }
    }
    param.getRecipientEmailAddressList() = std::move(recipients);
    return true;
}

bool SMTPParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<SMTPParam>& params) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        SMTPParam param;
        if (!parseDomainXmlNode(frame::nodeOf(*item), param)) return false;
        params.push_back(std::move(param));
    }
    return true;
}

bool SMTPParamXml::createXmlString(const SMTPParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("SMTPParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool SMTPParamXml::createXmlString(const std::vector<SMTPParam>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("SMTPParamList");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

bool SMTPParamXml::parseXmlString(const std::string& text, SMTPParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "SMTPParam", node) && parseDomainXmlNode(node, param);
}

bool SMTPParamXml::parseXmlString(const std::string& text, std::vector<SMTPParam>& params) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "SMTPParamList", node) && parseDomainXmlNode(node, params);
}
