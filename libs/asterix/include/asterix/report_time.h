#pragma once

struct _ast_datarecord_t;

struct _ast_time_of_day_t {
    bool present;
    double seconds; // since midnight UTC, or since the last multiple of the period
    double period; // seconds after which the value begins anew: 86400, of CAT001's truncated time 512
};

// When what the record tells of was so, or the record was made: I001/141, I002/030, I004/020, I008/090, I010/140,
// I019/140, I020/140, I021/030 or I021/073, else I021/077, I023/070, I034/030, I048/140, I062/070, I063/030, I065/030,
// I240/140. Not present in other categories and where the item is not sent.
_ast_time_of_day_t ast_datarecord_get_timeofday(const _ast_datarecord_t &record);
