#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// The time zone of a device, under the names of another document: "WebParam", with the zone as its "WebServerPort".
///
/// "DSTOpenFlag" and "DSTOffset" tell of daylight saving time, "BeginMonth", "BeginWeekly", "BeginWeekDays" and
/// "BeginTime" when it begins, "EndMonth", "EndWeekly", "EndWeekDays" and "EndTime" when it ends.
///
/// A missing attribute leaves its field in the document form. In the node form it gives false, and the fields before it
/// are set.
class TimeZoneParamXml : public IDomainXml
{
public:
    TimeZoneParamXml();
    ~TimeZoneParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setTimeZoneParam(const TimeZoneParam& param) { param_ = param; }
    TimeZoneParam& getTimeZoneParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const TimeZoneParam& param);
    static bool readElement(const TiXmlElement& element, TimeZoneParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const TimeZoneParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, TimeZoneParam& param) const;
    bool createXmlString(const TimeZoneParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, TimeZoneParam& param) const;
    /// @}

private:
    TimeZoneParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
