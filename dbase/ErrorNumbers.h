#pragma once

namespace zy::dbase {

/// The numbers of the run-time errors that the table engine raises.
enum ErrorNumber {
    kTableExists = 3010,
    kNoSuchTable = 3011,
    kNoCurrentRecord = 3021,
    kDiskFull = 3026,
    kReadOnly = 3027,
    kNoTransaction = 3034,
    kReadFailed = 3040,
    kDiskFailed = 3043,
    kBadPath = 3044,
    kInUse = 3045,
    kCannotOpen = 3051,
    kDuplicateDestination = 3063,
    kBadName = 3125,
    kUnknownField = 3127,
    kInvalidStatement = 3129,
    kInsertSyntax = 3134,
    kFieldTooSmall = 3163,
    kNoSuchKind = 3170,
    kTooManyFields = 3190,
    kFieldDefinedTwice = 3191,
    kInTransaction = 3246,
    kNotSupported = 3251,
    kNoSuchItem = 3265,
    kBadFormat = 3274,
    kIndexExists = 3284,
    kCreateTableSyntax = 3290,
    kCreateIndexSyntax = 3291,
    kFieldSyntax = 3292,
    kCountsDiffer = 3346,
    kUnknownIndexField = 3409,
    kClosed = 3420,
    kCannotConvert = 3421,
};

} // namespace zy::dbase
