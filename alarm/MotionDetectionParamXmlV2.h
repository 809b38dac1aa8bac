#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// How a detector with a cell map finds motion: the "MotionDetectionParamV2" document. In the node form its own texts
/// are called "DetectionAreaV2", like the child that they hold.
///
/// A missing attribute resets its field, in both forms. A missing child leaves the area in the document form and resets
/// it in the node form, which prints a line for it. A cell map that is too large to be written is left out of a
/// document and fails a node.
class MotionDetectionParamXmlV2 : public IDomainXml
{
public:
    MotionDetectionParamXmlV2();
    ~MotionDetectionParamXmlV2() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setMotionDetectionParamV2(const MotionDetectionParamV2& param) { param_ = param; }
    MotionDetectionParamV2& getMotionDetectionParamV2() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const MotionDetectionParamV2& param);
    static bool readElement(const TiXmlElement& element, MotionDetectionParamV2& param);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const MotionDetectionParamV2& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, MotionDetectionParamV2& param) const;
    bool createXmlString(const MotionDetectionParamV2& param, std::string& text) const;
    bool parseXmlString(const std::string& text, MotionDetectionParamV2& param) const;
    /// @}

private:
    MotionDetectionParamV2 param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
