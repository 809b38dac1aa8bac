#pragma once

#include "core/IDomainXml.h"
#include "domain/SecurityRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// A batch of entries of the log, with the changes of parameters that they tell of: the "LogInfoExList" document.
///
/// A missing "SendEndFlag" leaves the flag. The reader appends to the list; what an entry lacks is 0 or empty.
class LogInfoExXml : private IDomainXml
{
public:
    LogInfoExXml();
    ~LogInfoExXml() override;

    /// Whether this is the last batch of the search.
    bool getEndFlag() const { return endFlag_; }
    void setEndFlag(bool endFlag) { endFlag_ = endFlag; }

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setLogInfoExList(const std::vector<LogInfoEx>& infos) { infos_ = infos; }
    std::vector<LogInfoEx>& getLogInfoExList() { return infos_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }
    /// @}

private:
    bool endFlag_ = false;
    std::vector<LogInfoEx> infos_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
