#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>

/// What to look for in the log of alarms: the "AlarmLogQueryParam" document.
///
/// A missing attribute resets its field.
class AlarmLogQueryParamXml : public IDomainXml
{
public:
    AlarmLogQueryParamXml();
    ~AlarmLogQueryParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmLogQueryParam(const AlarmLogQueryParam& param) { param_ = param; }
    AlarmLogQueryParam& getAlarmLogQueryParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmLogQueryParam& param);
    static bool readElement(const TiXmlElement& element, AlarmLogQueryParam& param);
    /// @}

private:
    AlarmLogQueryParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
