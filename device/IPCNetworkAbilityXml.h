#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The network cards of a device: the "NetworkAbility" element of other documents.
///
/// It is a child only: its string operations do nothing. Reading replaces the list. Every child of "NetworkAbilityList"
/// counts as an item, whatever its name, and a missing attribute leaves 0, empty or false in it. A missing
/// "NetworkAbilityList" gives false, and the list is as it was; an empty one is an empty list.
class IPCNetworkAbilityXml : public IDomainXml
{
public:
    IPCNetworkAbilityXml();
    ~IPCNetworkAbilityXml() noexcept override;

    /// @name Document form on an element
    /// See IDomainXml. `createXmlNode` makes a new element each time; `getXmlNode` gives it, or the one that was set,
    /// and null without either. One that was made lives until the next is, or until the codec dies; one that was set is
    /// its owner's.
    /// @{
    void setIPCNetworkAbility(const std::vector<IPCNetworkCardAbility>& cards) { cards_ = cards; }
    std::vector<IPCNetworkCardAbility>& getIPCNetworkAbility() { return cards_; }
    void createXmlNode();
    /// Does nothing; true.
    bool createXmlString();
    /// Does nothing; true.
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlElement* element) { element_ = element; }
    TiXmlElement* getXmlNode() { return element_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<IPCNetworkCardAbility>& cards);
    static bool readElement(const TiXmlElement& element, std::vector<IPCNetworkCardAbility>& cards);
    /// @}

private:
    static void writeContent(TiXmlElement& element, const std::vector<IPCNetworkCardAbility>& cards);

    std::vector<IPCNetworkCardAbility> cards_;
    std::string text_;
    SafePointer<DomainXmlNode> tree_;
    TiXmlElement* element_ = nullptr;
};
