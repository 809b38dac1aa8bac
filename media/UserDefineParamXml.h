#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Values that the user defined, type by type: the "UserDefineParamList" document.
///
/// A missing attribute or list leaves its field as in a new record; the node form prints a line for the attribute. The
/// document form reads items of its names only, the node form items of any name. Both append to the list.
class UserDefineParamXml : private IDomainXml
{
public:
    UserDefineParamXml();
    ~UserDefineParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setUserDefineParamList(const std::vector<UserDefineParam>& params) { params_ = params; }
    std::vector<UserDefineParam>& getUserDefineParamList() { return params_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<UserDefineParam>& params);
    static bool readElement(const TiXmlElement& element, std::vector<UserDefineParam>& params);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const std::vector<UserDefineParam>& params, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<UserDefineParam>& params) const;
    bool createXmlString(const std::vector<UserDefineParam>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<UserDefineParam>& params) const;
    /// @}

private:
    std::vector<UserDefineParam> params_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
