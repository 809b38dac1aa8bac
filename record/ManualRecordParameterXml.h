#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>

/// Asks a device to record a camera now: the "ManualRecordParameter" document.
///
/// A missing attribute leaves its field. A "Duration" that is no time gives 0.
class ManualRecordParameterXml : public IDomainXml
{
public:
    ManualRecordParameterXml();
    ~ManualRecordParameterXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setManualRecordParameter(const ManualRecordParameter& parameter) { parameter_ = parameter; }
    ManualRecordParameter& getManualRecordParameter() { return parameter_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ManualRecordParameter& parameter);
    static bool readElement(const TiXmlElement& element, ManualRecordParameter& parameter);
    /// @}

private:
    ManualRecordParameter parameter_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
