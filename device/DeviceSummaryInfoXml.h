#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What a device is, in short: the "DeviceSummaryInfo" document.
///
/// A missing attribute or "Version" leaves its field; ports are added to those that the record has, 0 for one without a
/// number.
class DeviceSummaryInfoXml : public IDomainXml
{
public:
    DeviceSummaryInfoXml();
    ~DeviceSummaryInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceSummaryInfo(const DeviceSummaryInfo& info) { info_ = info; }
    DeviceSummaryInfo& getDeviceSummaryInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DeviceSummaryInfo& info);
    static bool readElement(const TiXmlElement& element, DeviceSummaryInfo& info);
    /// @}

private:
    DeviceSummaryInfo info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
