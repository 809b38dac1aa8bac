#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// The time zone of a device: the "TimeZoneParam" document, with the zone as its "TimeZone". The other attributes are
/// those of `TimeZoneParamXml`.
///
/// A missing attribute leaves its field in the document form. In the node form it gives false, and the fields before it
/// are set.
class TimeZoneExParamXml : public IDomainXml
{
public:
    TimeZoneExParamXml();
    ~TimeZoneExParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setTimeZoneExParam(const TimeZoneExParam& param) { param_ = param; }
    TimeZoneExParam& getTimeZoneExParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const TimeZoneExParam& param);
    static bool readElement(const TiXmlElement& element, TimeZoneExParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const TimeZoneExParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, TimeZoneExParam& param) const;
    bool createXmlString(const TimeZoneExParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, TimeZoneExParam& param) const;
    /// @}

private:
    TimeZoneExParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
