#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>

/// How the recordings of a camera are encoded: the "RecordQualityParam" document.
///
/// A missing "CameraId" resets its field; a missing child leaves its own.
class RecordQualityParamXml : public IDomainXml
{
public:
    RecordQualityParamXml();
    ~RecordQualityParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRecordQualityParam(const RecordQualityParam& param) { param_ = param; }
    RecordQualityParam& getRecordQualityParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const RecordQualityParam& param);
    static bool readElement(const TiXmlElement& element, RecordQualityParam& param);
    /// @}

private:
    RecordQualityParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
