#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The devices that a device knows: the "DeviceBaseInfoList" document.
///
/// The reader appends to the list; a failed item ends it with false.
class DeviceBaseInfoListXml : public IDomainXml
{
public:
    DeviceBaseInfoListXml();
    ~DeviceBaseInfoListXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceBaseInfoList(const std::vector<DeviceBaseInfo>& infos) { infos_ = infos; }
    std::vector<DeviceBaseInfo>& getDeviceBaseInfoList() { return infos_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<DeviceBaseInfo>& infos);
    static bool readElement(const TiXmlElement& element, std::vector<DeviceBaseInfo>& infos);
    /// @}

private:
    std::vector<DeviceBaseInfo> infos_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
