#pragma once

#include "core/IDomainXml.h"
#include "domain/PtzRecords.h"

#include <string>
#include <tinyxml.h>

/// An RS-232 port: the "RS232Param" document.
///
/// A missing attribute resets its field.
class RS232ParamXml : public IDomainXml
{
public:
    RS232ParamXml();
    ~RS232ParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRS232Param(const RS232Param& param) { param_ = param; }
    RS232Param& getRS232Param() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const RS232Param& param);
    static bool readElement(const TiXmlElement& element, RS232Param& param);
    /// @}

private:
    RS232Param param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
