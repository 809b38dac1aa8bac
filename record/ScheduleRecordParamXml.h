#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>

/// When a camera is recorded by the clock: the "ScheduleRecordParam" document.
///
/// A missing attribute resets its field; a missing schedule leaves its own.
class ScheduleRecordParamXml : public IDomainXml
{
public:
    ScheduleRecordParamXml();
    ~ScheduleRecordParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setScheduleRecordParam(const ScheduleRecordParam& param) { param_ = param; }
    ScheduleRecordParam& getScheduleRecordParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ScheduleRecordParam& param);
    static bool readElement(const TiXmlElement& element, ScheduleRecordParam& param);
    /// @}

private:
    ScheduleRecordParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
