#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Several questions to the log of alarms: the "AlarmInfoExQueryParamList" document.
///
/// The reader appends to the list.
class AlarmInfoExQueryParamListXml : public IDomainXml
{
public:
    AlarmInfoExQueryParamListXml();
    ~AlarmInfoExQueryParamListXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmInfoExQueryParamList(const std::vector<AlarmInfoExQueryParam>& params) { params_ = params; }
    std::vector<AlarmInfoExQueryParam>& getAlarmInfoExQueryParamList() { return params_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<AlarmInfoExQueryParam>& params);
    static bool readElement(const TiXmlElement& element, std::vector<AlarmInfoExQueryParam>& params);
    /// @}

private:
    std::vector<AlarmInfoExQueryParam> params_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
