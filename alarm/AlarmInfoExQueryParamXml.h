#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>

/// What to look for in the log of alarms: the "AlarmInfoExQueryParam" document.
///
/// A missing attribute resets its field; a missing time by the calendar is left.
class AlarmInfoExQueryParamXml : public IDomainXml
{
public:
    AlarmInfoExQueryParamXml();
    ~AlarmInfoExQueryParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmInfoExQueryParam(const AlarmInfoExQueryParam& param) { param_ = param; }
    AlarmInfoExQueryParam& getAlarmInfoExQueryParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmInfoExQueryParam& param);
    static bool readElement(const TiXmlElement& element, AlarmInfoExQueryParam& param);
    /// @}

private:
    AlarmInfoExQueryParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
