#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"

#include <string>
#include <tinyxml.h>

/// How a detector finds motion: the "MotionDetectionParam" document.
///
/// A missing attribute resets its field. Areas are added to those that the record has.
class MotionDetectionParamXml : public IDomainXml
{
public:
    MotionDetectionParamXml();
    ~MotionDetectionParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setMotionDetectionParam(const MotionDetectionParam& param) { param_ = param; }
    MotionDetectionParam& getMotionDetectionParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const MotionDetectionParam& param);
    static bool readElement(const TiXmlElement& element, MotionDetectionParam& param);
    /// @}

private:
    MotionDetectionParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
