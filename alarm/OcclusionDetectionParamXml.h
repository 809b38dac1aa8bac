#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// How a detector finds that a camera's view is blocked: the "OcclusionDetectionParam" document.
///
/// A missing attribute resets its field, in both forms. The document reader adds areas to those that the record has;
/// the node reader puts new ones in their place.
class OcclusionDetectionParamXml : public IDomainXml
{
public:
    OcclusionDetectionParamXml();
    ~OcclusionDetectionParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setOcclusionDetectionParam(const OcclusionDetectionParam& param) { param_ = param; }
    OcclusionDetectionParam& getOcclusionDetectionParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const OcclusionDetectionParam& param);
    static bool readElement(const TiXmlElement& element, OcclusionDetectionParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const OcclusionDetectionParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, OcclusionDetectionParam& param) const;
    bool createXmlString(const OcclusionDetectionParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, OcclusionDetectionParam& param) const;
    /// @}

private:
    OcclusionDetectionParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
