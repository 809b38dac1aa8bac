#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// What a device does when its disks fill up: the "DiskAlarmParamV2" document, and "DiskAlarmParamV2List" for several.
///
/// A missing "AlarmThreshold" gives 95 in the document form. Any other missing attribute, and this one in the node
/// form, resets its field; the node reader prints a line for it. The document reader adds actions to those that the
/// record has, and prints three lines whatever it reads; the node reader puts new ones in their place.
class DiskAlarmParamV2Xml : public IDomainXml
{
public:
    DiskAlarmParamV2Xml();
    ~DiskAlarmParamV2Xml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDiskAlarmParamV2(const DiskAlarmParamV2& param) { param_ = param; }
    DiskAlarmParamV2& getDiskAlarmParamV2() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DiskAlarmParamV2& param);
    static bool readElement(const TiXmlElement& element, DiskAlarmParamV2& param);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const DiskAlarmParamV2& param, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<DiskAlarmParamV2>& params, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DiskAlarmParamV2& param) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<DiskAlarmParamV2>& params) const;
    bool createXmlString(const DiskAlarmParamV2& param, std::string& text) const;
    bool createXmlString(const std::vector<DiskAlarmParamV2>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, DiskAlarmParamV2& param) const;
    bool parseXmlString(const std::string& text, std::vector<DiskAlarmParamV2>& params) const;
    /// @}

private:
    DiskAlarmParamV2 param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
