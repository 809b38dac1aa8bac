#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// What a device does when its network cards go down: the "NetworkAlarmParam" document.
///
/// A missing attribute resets its field, in both forms. The document reader adds events to those that the record has;
/// the node reader puts new ones in their place. Of a PTZ action the node form writes no "Reserve", and reads neither
/// that nor the command.
class NetworkAlarmParamXml : public IDomainXml
{
public:
    NetworkAlarmParamXml();
    ~NetworkAlarmParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setNetworkAlarmParam(const NetworkAlarmParam& param) { param_ = param; }
    NetworkAlarmParam& getNetworkAlarmParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const NetworkAlarmParam& param);
    static bool readElement(const TiXmlElement& element, NetworkAlarmParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{

    /// Removes the children that @p node has.
    bool createDomainXmlNode(const NetworkAlarmParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, NetworkAlarmParam& param) const;
    bool createXmlString(const NetworkAlarmParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, NetworkAlarmParam& param) const;
    /// @}

private:
    NetworkAlarmParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
