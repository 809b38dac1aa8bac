#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>

/// Which alarm output is meant: the "AlarmOutDeviceInfo" document.
///
/// A missing attribute resets its field.
class AlarmOutDeviceInfoXml : public IDomainXml
{
public:
    AlarmOutDeviceInfoXml();
    ~AlarmOutDeviceInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmOutDeviceInfo(const AlarmOutDeviceInfo& info) { info_ = info; }
    AlarmOutDeviceInfo& getAlarmOutDeviceInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmOutDeviceInfo& info);
    static bool readElement(const TiXmlElement& element, AlarmOutDeviceInfo& info);
    /// @}

private:
    AlarmOutDeviceInfo info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
