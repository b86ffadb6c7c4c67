// SPDX-License-Identifier: MIT
/// @file
/// Foundation of the framework: objects, strings, exceptions, files, archives and diagnostics.
#pragma once

#include "afx/Platform.h"
#include "afx/Types.h"
#include "afx/Diagnostics.h"
#include "afx/CRuntimeClass.h"
#include "afx/CObject.h"
#include "afx/CString.h"
#include "afx/CException.h"
#include "afx/CFileException.h"
#include "afx/CArchiveException.h"
#include "afx/CFile.h"
#include "afx/CMemFile.h"
#include "afx/CArchive.h"
#include "afx/CDumpContext.h"
