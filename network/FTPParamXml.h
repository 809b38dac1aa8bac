#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// How a device transfers files to a server: the "FTPParam" document.
///
/// A missing attribute resets its field.
class FTPParamXml : public IDomainXml
{
public:
    FTPParamXml();
    ~FTPParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setFTPParam(const FTPParam& param) { param_ = param; }
    FTPParam& getFTPParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const FTPParam& param);
    static bool readElement(const TiXmlElement& element, FTPParam& param);
    /// @}

private:
    FTPParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
