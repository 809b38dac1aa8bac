#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>

/// When a device raises an alarm about its disks: the "DiskAlarmParam" document.
///
/// A missing attribute resets its field.
class DiskAlarmParamXml : public IDomainXml
{
public:
    DiskAlarmParamXml();
    ~DiskAlarmParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDiskAlarmParam(const DiskAlarmParam& param) { param_ = param; }
    DiskAlarmParam& getDiskAlarmParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DiskAlarmParam& param);
    static bool readElement(const TiXmlElement& element, DiskAlarmParam& param);
    /// @}

private:
    DiskAlarmParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
