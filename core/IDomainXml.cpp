#include "core/IDomainXml.h"

IDomainXml::~IDomainXml() = default;
