#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>

/// Which alarm input is meant: the "AlarmInDeviceInfo" document.
///
/// A missing attribute resets its field.
class AlarmInDeviceInfoXml : public IDomainXml
{
public:
    AlarmInDeviceInfoXml();
    ~AlarmInDeviceInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmInDeviceInfo(const AlarmInDeviceInfo& info) { info_ = info; }
    AlarmInDeviceInfo& getAlarmInDeviceInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmInDeviceInfo& info);
    static bool readElement(const TiXmlElement& element, AlarmInDeviceInfo& info);
    /// @}

private:
    AlarmInDeviceInfo info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
