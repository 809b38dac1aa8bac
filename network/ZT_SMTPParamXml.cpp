// <ZT_SMTPParam ZT_SMTPEnableFlag="true" ZT_UseDefaultSMTPServerFlag="false" ... ZT_TransportMode="3">
//     <ZT_RecipientEmailAddressList>
//         <ZT_RecipientEmailAddress ZT_RecipientEmailAddress="guard@example.org" />
//     </ZT_RecipientEmailAddressList>
// </ZT_SMTPParam>

#include "network/ZT_SMTPParamXml.h"

#include "core/Frame.h"

#include <utility>

ZT_SMTPParamXml::ZT_SMTPParamXml() = default;

ZT_SMTPParamXml::~ZT_SMTPParamXml() = default;

bool ZT_SMTPParamXml::createDomainXmlNode(const SMTPParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("ZT_SMTPEnableFlag", param.getSMTPEnableFlag());
    node->setProperty("ZT_UseDefaultSMTPServerFlag", param.getUseDefaultSMTPServerFlag());
    node->setProperty("ZT_SMTPServerAddr", param.getSMTPServerAddr());
    node->setProperty("ZT_SMTPServerPort", param.getSMTPServerPort());
    node->setProperty("ZT_SMTPUserName", param.getSMTPUserName());
    node->setProperty("ZT_SMTPPassword", param.getSMTPPassword());
    node->setProperty("ZT_SenderEmailAddress", param.getSenderEmailAddress());
    node->setProperty("ZT_MailLanguage", param.getMailLanguage());
    node->setProperty("ZT_AttachmentImageQuality", param.getAttachmentImageQuality());
    node->setProperty("ZT_TransportMode", param.getTransportMode());

    SafePointer<DomainXmlNode> recipients = frame::appendNode(node, "ZT_RecipientEmailAddressList");
    for (const std::string& address : param.getRecipientEmailAddressList())
        frame::appendNode(recipients, "ZT_RecipientEmailAddress")->setProperty("ZT_RecipientEmailAddress", address);
    return true;
}

bool ZT_SMTPParamXml::createDomainXmlNode(const std::vector<SMTPParam>& params, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const SMTPParam& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "ZT_SMTPParam");
        if (!createDomainXmlNode(param, item)) return false;
    }
    return true;
}

bool ZT_SMTPParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SMTPParam& param) const
{
    if (!node) return false;

    // The lines are those of SMTPParamXml, without the prefix: whoever searches the output for one finds both.
    param.setSMTPEnableFlag(frame::flagProperty(node, "ZT_SMTPEnableFlag", false,
                                                "SMTPParamXml::parseDomainXmlNode get SMTPEnableFlag failed "));
    param.setUseDefaultSMTPServerFlag(
        frame::flagProperty(node, "ZT_UseDefaultSMTPServerFlag", false,
                            "SMTPParamXml::parseDomainXmlNode get UseDefaultSMTPServerFlag failed "));
    param.setSMTPServerAddr(frame::textProperty(node, "ZT_SMTPServerAddr", "",
                                                "SMTPParamXml::parseDomainXmlNode get SMTPServerAddr failed "));
    param.setSMTPServerPort(frame::uint16Property(node, "ZT_SMTPServerPort", 0,
                                                  "SMTPParamXml::parseDomainXmlNode get SMTPServerPort failed "));
    param.setSMTPUserName(
        frame::textProperty(node, "ZT_SMTPUserName", "", "SMTPParamXml::parseDomainXmlNode get SMTPUserName failed "));
    param.setSMTPPassword(
        frame::textProperty(node, "ZT_SMTPPassword", "", "SMTPParamXml::parseDomainXmlNode get SMTPPassword failed "));
    param.setSenderEmailAddress(frame::textProperty(node, "ZT_SenderEmailAddress", "",
                                                    "SMTPParamXml::parseDomainXmlNode get SenderEmailAddress failed "));
    param.setMailLauguage(
        frame::intProperty(node, "ZT_MailLanguage", 0, "SMTPParamXml::parseDomainXmlNode get MailLanguage failed "));
    param.setAttachmentImageQuality(frame::intProperty(
        node, "ZT_AttachmentImageQuality", 0, "SMTPParamXml::parseDomainXmlNode get AttachmentImageQuality failed "));
    param.setTransportMode(
        frame::intProperty(node, "ZT_TransportMode", 0, "SMTPParamXml::parseDomainXmlNode get TransportMode failed "));

    std::vector<std::string> recipients;
    SafePointer<DomainXmlNode> list;
    if (node->getConfigNode("ZT_RecipientEmailAddressList", list))
    {
        const TiXmlElement* item = frame::firstItem(*list->getXmlNode(), "ZT_RecipientEmailAddress");
        for (; item != nullptr; item = item->NextSiblingElement("ZT_RecipientEmailAddress"))
        {
            const char* address = frame::attributeOf(*item, "ZT_RecipientEmailAddress");
            if (address == nullptr) return false;
            recipients.emplace_back(address);
        }
    }
    param.getRecipientEmailAddressList() = std::move(recipients);
    return true;
}

bool ZT_SMTPParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<SMTPParam>& params) const
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

bool ZT_SMTPParamXml::createXmlString(const SMTPParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ZT_SMTPParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool ZT_SMTPParamXml::createXmlString(const std::vector<SMTPParam>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ZT_SMTPParamList");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

bool ZT_SMTPParamXml::parseXmlString(const std::string& text, SMTPParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ZT_SMTPParam", node) && parseDomainXmlNode(node, param);
}

bool ZT_SMTPParamXml::parseXmlString(const std::string& text, std::vector<SMTPParam>& params) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ZT_SMTPParamList", node) && parseDomainXmlNode(node, params);
}
