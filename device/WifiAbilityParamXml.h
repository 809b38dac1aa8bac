#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// Whether a device can reach wireless networks: the "WifiAbilityParam" document.
///
/// Reading gives a fresh record, in which a missing attribute leaves false or empty. A missing "WifiAbilityParamItem"
/// gives false, and the record is as it was.
class WifiAbilityParamXml : public IDomainXml
{
public:
    WifiAbilityParamXml();
    ~WifiAbilityParamXml() noexcept override;

    /// @name Document form on an element
    /// See IDomainXml. `createXmlNode` makes a new element each time; `getXmlNode` gives it, or the one that was set or
    /// parsed, and null without any. One that was made or parsed lives until the next is, or until the codec dies; one
    /// that was set is its owner's.
    /// @{
    void setWifiAbilityParam(const WifiAbilityParam& param) { param_ = param; }
    WifiAbilityParam& getWifiAbilityParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlElement* element) { element_ = element; }
    TiXmlElement* getXmlNode() { return element_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const WifiAbilityParam& param);
    static bool readElement(const TiXmlElement& element, WifiAbilityParam& param);
    /// @}

private:
    static void writeContent(TiXmlElement& element, const WifiAbilityParam& param);

    WifiAbilityParam param_;
    std::string text_;
    SafePointer<DomainXmlNode> tree_;
    TiXmlElement* element_ = nullptr;
};
