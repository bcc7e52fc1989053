-- Every word of a TO_CHAR pattern, alone and in company.
select id, to_char(cast(ts as timestamp), 'HH') from moment
select id, to_char(cast(fine as timestamp), 'FMHH') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'HH')
select to_char(timestamp '2004-12-31 00:00:00', 'FMHH')
select id, to_char(cast(ts as timestamp), 'HH12') from moment
select id, to_char(cast(fine as timestamp), 'FMHH12') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'HH12')
select to_char(timestamp '2004-12-31 00:00:00', 'FMHH12')
select id, to_char(cast(ts as timestamp), 'HH24') from moment
select id, to_char(cast(fine as timestamp), 'FMHH24') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'HH24')
select to_char(timestamp '2004-12-31 00:00:00', 'FMHH24')
select id, to_char(cast(ts as timestamp), 'MI') from moment
select id, to_char(cast(fine as timestamp), 'FMMI') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'MI')
select to_char(timestamp '2004-12-31 00:00:00', 'FMMI')
select id, to_char(cast(ts as timestamp), 'SS') from moment
select id, to_char(cast(fine as timestamp), 'FMSS') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'SS')
select to_char(timestamp '2004-12-31 00:00:00', 'FMSS')
select id, to_char(cast(ts as timestamp), 'MS') from moment
select id, to_char(cast(fine as timestamp), 'FMMS') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'MS')
select to_char(timestamp '2004-12-31 00:00:00', 'FMMS')
select id, to_char(cast(ts as timestamp), 'US') from moment
select id, to_char(cast(fine as timestamp), 'FMUS') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'US')
select to_char(timestamp '2004-12-31 00:00:00', 'FMUS')
select id, to_char(cast(ts as timestamp), 'SSSS') from moment
select id, to_char(cast(fine as timestamp), 'FMSSSS') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'SSSS')
select to_char(timestamp '2004-12-31 00:00:00', 'FMSSSS')
select id, to_char(cast(ts as timestamp), 'AM') from moment
select id, to_char(cast(fine as timestamp), 'FMAM') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'AM')
select to_char(timestamp '2004-12-31 00:00:00', 'FMAM')
select id, to_char(cast(ts as timestamp), 'PM') from moment
select id, to_char(cast(fine as timestamp), 'FMPM') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'PM')
select to_char(timestamp '2004-12-31 00:00:00', 'FMPM')
select id, to_char(cast(ts as timestamp), 'A.M.') from moment
select id, to_char(cast(fine as timestamp), 'FMA.M.') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'A.M.')
select to_char(timestamp '2004-12-31 00:00:00', 'FMA.M.')
select id, to_char(cast(ts as timestamp), 'P.M.') from moment
select id, to_char(cast(fine as timestamp), 'FMP.M.') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'P.M.')
select to_char(timestamp '2004-12-31 00:00:00', 'FMP.M.')
select id, to_char(cast(ts as timestamp), 'am') from moment
select id, to_char(cast(fine as timestamp), 'FMam') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'am')
select to_char(timestamp '2004-12-31 00:00:00', 'FMam')
select id, to_char(cast(ts as timestamp), 'pm') from moment
select id, to_char(cast(fine as timestamp), 'FMpm') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'pm')
select to_char(timestamp '2004-12-31 00:00:00', 'FMpm')
select id, to_char(cast(ts as timestamp), 'a.m.') from moment
select id, to_char(cast(fine as timestamp), 'FMa.m.') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'a.m.')
select to_char(timestamp '2004-12-31 00:00:00', 'FMa.m.')
select id, to_char(cast(ts as timestamp), 'p.m.') from moment
select id, to_char(cast(fine as timestamp), 'FMp.m.') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'p.m.')
select to_char(timestamp '2004-12-31 00:00:00', 'FMp.m.')
select id, to_char(cast(ts as timestamp), 'Y,YYY') from moment
select id, to_char(cast(fine as timestamp), 'FMY,YYY') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'Y,YYY')
select to_char(timestamp '2004-12-31 00:00:00', 'FMY,YYY')
select id, to_char(cast(ts as timestamp), 'YYYY') from moment
select id, to_char(cast(fine as timestamp), 'FMYYYY') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'YYYY')
select to_char(timestamp '2004-12-31 00:00:00', 'FMYYYY')
select id, to_char(cast(ts as timestamp), 'YYY') from moment
select id, to_char(cast(fine as timestamp), 'FMYYY') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'YYY')
select to_char(timestamp '2004-12-31 00:00:00', 'FMYYY')
select id, to_char(cast(ts as timestamp), 'YY') from moment
select id, to_char(cast(fine as timestamp), 'FMYY') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'YY')
select to_char(timestamp '2004-12-31 00:00:00', 'FMYY')
select id, to_char(cast(ts as timestamp), 'Y') from moment
select id, to_char(cast(fine as timestamp), 'FMY') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'Y')
select to_char(timestamp '2004-12-31 00:00:00', 'FMY')
select id, to_char(cast(ts as timestamp), 'IYYY') from moment
select id, to_char(cast(fine as timestamp), 'FMIYYY') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'IYYY')
select to_char(timestamp '2004-12-31 00:00:00', 'FMIYYY')
select id, to_char(cast(ts as timestamp), 'IYY') from moment
select id, to_char(cast(fine as timestamp), 'FMIYY') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'IYY')
select to_char(timestamp '2004-12-31 00:00:00', 'FMIYY')
select id, to_char(cast(ts as timestamp), 'IY') from moment
select id, to_char(cast(fine as timestamp), 'FMIY') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'IY')
select to_char(timestamp '2004-12-31 00:00:00', 'FMIY')
select id, to_char(cast(ts as timestamp), 'I') from moment
select id, to_char(cast(fine as timestamp), 'FMI') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'I')
select to_char(timestamp '2004-12-31 00:00:00', 'FMI')
select id, to_char(cast(ts as timestamp), 'AD') from moment
select id, to_char(cast(fine as timestamp), 'FMAD') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'AD')
select to_char(timestamp '2004-12-31 00:00:00', 'FMAD')
select id, to_char(cast(ts as timestamp), 'BC') from moment
select id, to_char(cast(fine as timestamp), 'FMBC') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'BC')
select to_char(timestamp '2004-12-31 00:00:00', 'FMBC')
select id, to_char(cast(ts as timestamp), 'A.D.') from moment
select id, to_char(cast(fine as timestamp), 'FMA.D.') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'A.D.')
select to_char(timestamp '2004-12-31 00:00:00', 'FMA.D.')
select id, to_char(cast(ts as timestamp), 'B.C.') from moment
select id, to_char(cast(fine as timestamp), 'FMB.C.') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'B.C.')
select to_char(timestamp '2004-12-31 00:00:00', 'FMB.C.')
select id, to_char(cast(ts as timestamp), 'ad') from moment
select id, to_char(cast(fine as timestamp), 'FMad') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'ad')
select to_char(timestamp '2004-12-31 00:00:00', 'FMad')
select id, to_char(cast(ts as timestamp), 'bc') from moment
select id, to_char(cast(fine as timestamp), 'FMbc') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'bc')
select to_char(timestamp '2004-12-31 00:00:00', 'FMbc')
select id, to_char(cast(ts as timestamp), 'a.d.') from moment
select id, to_char(cast(fine as timestamp), 'FMa.d.') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'a.d.')
select to_char(timestamp '2004-12-31 00:00:00', 'FMa.d.')
select id, to_char(cast(ts as timestamp), 'b.c.') from moment
select id, to_char(cast(fine as timestamp), 'FMb.c.') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'b.c.')
select to_char(timestamp '2004-12-31 00:00:00', 'FMb.c.')
select id, to_char(cast(ts as timestamp), 'MONTH') from moment
select id, to_char(cast(fine as timestamp), 'FMMONTH') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'MONTH')
select to_char(timestamp '2004-12-31 00:00:00', 'FMMONTH')
select id, to_char(cast(ts as timestamp), 'Month') from moment
select id, to_char(cast(fine as timestamp), 'FMMonth') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'Month')
select to_char(timestamp '2004-12-31 00:00:00', 'FMMonth')
select id, to_char(cast(ts as timestamp), 'month') from moment
select id, to_char(cast(fine as timestamp), 'FMmonth') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'month')
select to_char(timestamp '2004-12-31 00:00:00', 'FMmonth')
select id, to_char(cast(ts as timestamp), 'MON') from moment
select id, to_char(cast(fine as timestamp), 'FMMON') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'MON')
select to_char(timestamp '2004-12-31 00:00:00', 'FMMON')
select id, to_char(cast(ts as timestamp), 'Mon') from moment
select id, to_char(cast(fine as timestamp), 'FMMon') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'Mon')
select to_char(timestamp '2004-12-31 00:00:00', 'FMMon')
select id, to_char(cast(ts as timestamp), 'mon') from moment
select id, to_char(cast(fine as timestamp), 'FMmon') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'mon')
select to_char(timestamp '2004-12-31 00:00:00', 'FMmon')
select id, to_char(cast(ts as timestamp), 'MM') from moment
select id, to_char(cast(fine as timestamp), 'FMMM') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'MM')
select to_char(timestamp '2004-12-31 00:00:00', 'FMMM')
select id, to_char(cast(ts as timestamp), 'DAY') from moment
select id, to_char(cast(fine as timestamp), 'FMDAY') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'DAY')
select to_char(timestamp '2004-12-31 00:00:00', 'FMDAY')
select id, to_char(cast(ts as timestamp), 'Day') from moment
select id, to_char(cast(fine as timestamp), 'FMDay') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'Day')
select to_char(timestamp '2004-12-31 00:00:00', 'FMDay')
select id, to_char(cast(ts as timestamp), 'day') from moment
select id, to_char(cast(fine as timestamp), 'FMday') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'day')
select to_char(timestamp '2004-12-31 00:00:00', 'FMday')
select id, to_char(cast(ts as timestamp), 'DY') from moment
select id, to_char(cast(fine as timestamp), 'FMDY') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'DY')
select to_char(timestamp '2004-12-31 00:00:00', 'FMDY')
select id, to_char(cast(ts as timestamp), 'Dy') from moment
select id, to_char(cast(fine as timestamp), 'FMDy') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'Dy')
select to_char(timestamp '2004-12-31 00:00:00', 'FMDy')
select id, to_char(cast(ts as timestamp), 'dy') from moment
select id, to_char(cast(fine as timestamp), 'FMdy') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'dy')
select to_char(timestamp '2004-12-31 00:00:00', 'FMdy')
select id, to_char(cast(ts as timestamp), 'DDD') from moment
select id, to_char(cast(fine as timestamp), 'FMDDD') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'DDD')
select to_char(timestamp '2004-12-31 00:00:00', 'FMDDD')
select id, to_char(cast(ts as timestamp), 'DD') from moment
select id, to_char(cast(fine as timestamp), 'FMDD') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'DD')
select to_char(timestamp '2004-12-31 00:00:00', 'FMDD')
select id, to_char(cast(ts as timestamp), 'D') from moment
select id, to_char(cast(fine as timestamp), 'FMD') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'D')
select to_char(timestamp '2004-12-31 00:00:00', 'FMD')
select id, to_char(cast(ts as timestamp), 'W') from moment
select id, to_char(cast(fine as timestamp), 'FMW') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'W')
select to_char(timestamp '2004-12-31 00:00:00', 'FMW')
select id, to_char(cast(ts as timestamp), 'WW') from moment
select id, to_char(cast(fine as timestamp), 'FMWW') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'WW')
select to_char(timestamp '2004-12-31 00:00:00', 'FMWW')
select id, to_char(cast(ts as timestamp), 'IW') from moment
select id, to_char(cast(fine as timestamp), 'FMIW') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'IW')
select to_char(timestamp '2004-12-31 00:00:00', 'FMIW')
select id, to_char(cast(ts as timestamp), 'CC') from moment
select id, to_char(cast(fine as timestamp), 'FMCC') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'CC')
select to_char(timestamp '2004-12-31 00:00:00', 'FMCC')
select id, to_char(cast(ts as timestamp), 'J') from moment
select id, to_char(cast(fine as timestamp), 'FMJ') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'J')
select to_char(timestamp '2004-12-31 00:00:00', 'FMJ')
select id, to_char(cast(ts as timestamp), 'Q') from moment
select id, to_char(cast(fine as timestamp), 'FMQ') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'Q')
select to_char(timestamp '2004-12-31 00:00:00', 'FMQ')
select id, to_char(cast(ts as timestamp), 'RM') from moment
select id, to_char(cast(fine as timestamp), 'FMRM') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'RM')
select to_char(timestamp '2004-12-31 00:00:00', 'FMRM')
select id, to_char(cast(ts as timestamp), 'rm') from moment
select id, to_char(cast(fine as timestamp), 'FMrm') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'rm')
select to_char(timestamp '2004-12-31 00:00:00', 'FMrm')
select id, to_char(cast(ts as timestamp), 'TZ') from moment
select id, to_char(cast(fine as timestamp), 'FMTZ') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'TZ')
select to_char(timestamp '2004-12-31 00:00:00', 'FMTZ')
select id, to_char(cast(ts as timestamp), 'tz') from moment
select id, to_char(cast(fine as timestamp), 'FMtz') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'tz')
select to_char(timestamp '2004-12-31 00:00:00', 'FMtz')
select id, to_char(cast(ts as timestamp), 'ID') from moment
select id, to_char(cast(fine as timestamp), 'FMID') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'ID')
select to_char(timestamp '2004-12-31 00:00:00', 'FMID')
select id, to_char(cast(ts as timestamp), 'IDDD') from moment
select id, to_char(cast(fine as timestamp), 'FMIDDD') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'IDDD')
select to_char(timestamp '2004-12-31 00:00:00', 'FMIDDD')
select id, to_char(cast(ts as timestamp), 'SSSSS') from moment
select id, to_char(cast(fine as timestamp), 'FMSSSSS') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'SSSSS')
select to_char(timestamp '2004-12-31 00:00:00', 'FMSSSSS')
select id, to_char(cast(ts as timestamp), 'FF3') from moment
select id, to_char(cast(fine as timestamp), 'FMFF3') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'FF3')
select to_char(timestamp '2004-12-31 00:00:00', 'FMFF3')
select id, to_char(cast(ts as timestamp), 'OF') from moment
select id, to_char(cast(fine as timestamp), 'FMOF') from moment
select to_char(timestamp '2005-05-07 04:05:06', 'OF')
select to_char(timestamp '2004-12-31 00:00:00', 'FMOF')
select id, to_char(cast(ts as timestamp), 'DDth') from moment
select id, to_char(cast(ts as timestamp), 'DDTH') from moment
select id, to_char(cast(ts as timestamp), 'FMDDth') from moment
select id, to_char(cast(ts as timestamp), 'MMth') from moment
select id, to_char(cast(ts as timestamp), 'MMTH') from moment
select id, to_char(cast(ts as timestamp), 'FMMMth') from moment
select id, to_char(cast(ts as timestamp), 'DDDth') from moment
select id, to_char(cast(ts as timestamp), 'DDDTH') from moment
select id, to_char(cast(ts as timestamp), 'FMDDDth') from moment
select id, to_char(cast(ts as timestamp), 'Dth') from moment
select id, to_char(cast(ts as timestamp), 'DTH') from moment
select id, to_char(cast(ts as timestamp), 'FMDth') from moment
select id, to_char(cast(ts as timestamp), 'Qth') from moment
select id, to_char(cast(ts as timestamp), 'QTH') from moment
select id, to_char(cast(ts as timestamp), 'FMQth') from moment
select id, to_char(cast(ts as timestamp), 'WWth') from moment
select id, to_char(cast(ts as timestamp), 'WWTH') from moment
select id, to_char(cast(ts as timestamp), 'FMWWth') from moment
select id, to_char(cast(ts as timestamp), 'HH24th') from moment
select id, to_char(cast(ts as timestamp), 'HH24TH') from moment
select id, to_char(cast(ts as timestamp), 'FMHH24th') from moment
select id, to_char(cast(ts as timestamp), 'YYYYth') from moment
select id, to_char(cast(ts as timestamp), 'YYYYTH') from moment
select id, to_char(cast(ts as timestamp), 'FMYYYYth') from moment
select id, to_char(cast(ts as timestamp), 'Wth') from moment
select id, to_char(cast(ts as timestamp), 'WTH') from moment
select id, to_char(cast(ts as timestamp), 'FMWth') from moment
select id, to_char(cast(ts as timestamp), 'IWth') from moment
select id, to_char(cast(ts as timestamp), 'IWTH') from moment
select id, to_char(cast(ts as timestamp), 'FMIWth') from moment
select id, to_char(cast(ts as timestamp), 'MIth') from moment
select id, to_char(cast(ts as timestamp), 'MITH') from moment
select id, to_char(cast(ts as timestamp), 'FMMIth') from moment
select id, to_char(cast(ts as timestamp), 'SSth') from moment
select id, to_char(cast(ts as timestamp), 'SSTH') from moment
select id, to_char(cast(ts as timestamp), 'FMSSth') from moment
select id, to_char(ts, 'YYYY-MM-DD') from moment
select id, to_char(d, 'YYYY-MM-DD') from moment
select id, to_char(fine, 'YYYY-MM-DD') from moment
select id, to_char(tz, 'YYYY-MM-DD') from moment
select id, to_char(ts, 'DD.MM.YYYY HH24:MI') from moment
select id, to_char(d, 'DD.MM.YYYY HH24:MI') from moment
select id, to_char(fine, 'DD.MM.YYYY HH24:MI') from moment
select id, to_char(tz, 'DD.MM.YYYY HH24:MI') from moment
select id, to_char(ts, 'Month') from moment
select id, to_char(d, 'Month') from moment
select id, to_char(fine, 'Month') from moment
select id, to_char(tz, 'Month') from moment
select id, to_char(ts, 'DD') from moment
select id, to_char(d, 'DD') from moment
select id, to_char(fine, 'DD') from moment
select id, to_char(tz, 'DD') from moment
select id, to_char(ts, 'MM') from moment
select id, to_char(d, 'MM') from moment
select id, to_char(fine, 'MM') from moment
select id, to_char(tz, 'MM') from moment
select id, to_char(cast(ts as timestamp), 'YYYY-MM-DD') from moment
select to_char(cast(tz as timestamp), 'YYYY-MM-DD') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'YYYY-MM-DD')
select id, to_char(cast(ts as timestamp), 'YYYY-MM-DD HH24:MI:SS') from moment
select to_char(cast(tz as timestamp), 'YYYY-MM-DD HH24:MI:SS') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'YYYY-MM-DD HH24:MI:SS')
select id, to_char(cast(ts as timestamp), 'DD.MM.YYYY') from moment
select to_char(cast(tz as timestamp), 'DD.MM.YYYY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'DD.MM.YYYY')
select id, to_char(cast(ts as timestamp), 'DD/MM/YY') from moment
select to_char(cast(tz as timestamp), 'DD/MM/YY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'DD/MM/YY')
select id, to_char(cast(ts as timestamp), 'MM/DD/YYYY') from moment
select to_char(cast(tz as timestamp), 'MM/DD/YYYY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'MM/DD/YYYY')
select id, to_char(cast(ts as timestamp), 'HH12:MI AM') from moment
select to_char(cast(tz as timestamp), 'HH12:MI AM') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'HH12:MI AM')
select id, to_char(cast(ts as timestamp), 'HH:MI:SS PM') from moment
select to_char(cast(tz as timestamp), 'HH:MI:SS PM') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'HH:MI:SS PM')
select id, to_char(cast(ts as timestamp), 'FMMM/FMDD/YYYY') from moment
select to_char(cast(tz as timestamp), 'FMMM/FMDD/YYYY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'FMMM/FMDD/YYYY')
select id, to_char(cast(ts as timestamp), 'FMDay, FMDD FMMonth YYYY') from moment
select to_char(cast(tz as timestamp), 'FMDay, FMDD FMMonth YYYY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'FMDay, FMDD FMMonth YYYY')
select id, to_char(cast(ts as timestamp), 'Day, DD Month YYYY') from moment
select to_char(cast(tz as timestamp), 'Day, DD Month YYYY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'Day, DD Month YYYY')
select id, to_char(cast(ts as timestamp), 'Dy DD Mon YYYY') from moment
select to_char(cast(tz as timestamp), 'Dy DD Mon YYYY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'Dy DD Mon YYYY')
select id, to_char(cast(ts as timestamp), 'Mon DD, YYYY') from moment
select to_char(cast(tz as timestamp), 'Mon DD, YYYY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'Mon DD, YYYY')
select id, to_char(cast(ts as timestamp), 'YYYYMMDD') from moment
select to_char(cast(tz as timestamp), 'YYYYMMDD') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'YYYYMMDD')
select id, to_char(cast(ts as timestamp), 'YYYY"year"MM"month"') from moment
select to_char(cast(tz as timestamp), 'YYYY"year"MM"month"') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'YYYY"year"MM"month"')
select id, to_char(cast(ts as timestamp), '"Week" IW') from moment
select to_char(cast(tz as timestamp), '"Week" IW') from moment
select to_char(timestamp '2005-05-07 14:05:06', '"Week" IW')
select id, to_char(cast(ts as timestamp), 'YYYY-IW') from moment
select to_char(cast(tz as timestamp), 'YYYY-IW') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'YYYY-IW')
select id, to_char(cast(ts as timestamp), 'IYYY-IW') from moment
select to_char(cast(tz as timestamp), 'IYYY-IW') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'IYYY-IW')
select id, to_char(cast(ts as timestamp), 'YYYY-"W"WW') from moment
select to_char(cast(tz as timestamp), 'YYYY-"W"WW') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'YYYY-"W"WW')
select id, to_char(cast(ts as timestamp), 'HH24:MI:SS.US') from moment
select to_char(cast(tz as timestamp), 'HH24:MI:SS.US') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'HH24:MI:SS.US')
select id, to_char(cast(ts as timestamp), 'HH24:MI:SS.MS') from moment
select to_char(cast(tz as timestamp), 'HH24:MI:SS.MS') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'HH24:MI:SS.MS')
select id, to_char(cast(ts as timestamp), 'HH24hMI') from moment
select to_char(cast(tz as timestamp), 'HH24hMI') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'HH24hMI')
select to_char(cast(tz as timestamp), 'Month') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'Month')
select id, to_char(cast(ts as timestamp), 'FMMonth') from moment
select to_char(cast(tz as timestamp), 'FMMonth') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'FMMonth')
select id, to_char(cast(ts as timestamp), 'YYYY/Q') from moment
select to_char(cast(tz as timestamp), 'YYYY/Q') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'YYYY/Q')
select id, to_char(cast(ts as timestamp), '"Q"Q YYYY') from moment
select to_char(cast(tz as timestamp), '"Q"Q YYYY') from moment
select to_char(timestamp '2005-05-07 14:05:06', '"Q"Q YYYY')
select id, to_char(cast(ts as timestamp), 'DDD of YYYY') from moment
select to_char(cast(tz as timestamp), 'DDD of YYYY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'DDD of YYYY')
select id, to_char(cast(ts as timestamp), '') from moment
select to_char(cast(tz as timestamp), '') from moment
select to_char(timestamp '2005-05-07 14:05:06', '')
select id, to_char(cast(ts as timestamp), 'plain') from moment
select to_char(cast(tz as timestamp), 'plain') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'plain')
select id, to_char(cast(ts as timestamp), '%Y-%m') from moment
select to_char(cast(tz as timestamp), '%Y-%m') from moment
select to_char(timestamp '2005-05-07 14:05:06', '%Y-%m')
select id, to_char(cast(ts as timestamp), 'YYYY%MM') from moment
select to_char(cast(tz as timestamp), 'YYYY%MM') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'YYYY%MM')
select id, to_char(cast(ts as timestamp), 'FMHH24:FMMI') from moment
select to_char(cast(tz as timestamp), 'FMHH24:FMMI') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'FMHH24:FMMI')
select id, to_char(cast(ts as timestamp), 'FMHH12:MIam') from moment
select to_char(cast(tz as timestamp), 'FMHH12:MIam') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'FMHH12:MIam')
select id, to_char(cast(ts as timestamp), 'FXYYYY-MM-DD') from moment
select to_char(cast(tz as timestamp), 'FXYYYY-MM-DD') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'FXYYYY-MM-DD')
select id, to_char(cast(ts as timestamp), 'yyyy-mm-dd') from moment
select to_char(cast(tz as timestamp), 'yyyy-mm-dd') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'yyyy-mm-dd')
select id, to_char(cast(ts as timestamp), 'hh24:mi') from moment
select to_char(cast(tz as timestamp), 'hh24:mi') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'hh24:mi')
select id, to_char(cast(ts as timestamp), 'DD-Mon-YY') from moment
select to_char(cast(tz as timestamp), 'DD-Mon-YY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'DD-Mon-YY')
select to_char(cast(tz as timestamp), 'Mon') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'Mon')
select id, to_char(cast(ts as timestamp), 'MON-YYYY') from moment
select to_char(cast(tz as timestamp), 'MON-YYYY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'MON-YYYY')
select id, to_char(cast(ts as timestamp), 'mm') from moment
select to_char(cast(tz as timestamp), 'mm') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'mm')
select id, to_char(cast(ts as timestamp), 'Mon FMDDth') from moment
select to_char(cast(tz as timestamp), 'Mon FMDDth') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'Mon FMDDth')
select id, to_char(cast(ts as timestamp), 'D. FMMonth') from moment
select to_char(cast(tz as timestamp), 'D. FMMonth') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'D. FMMonth')
select id, to_char(cast(ts as timestamp), 'DD HH24') from moment
select to_char(cast(tz as timestamp), 'DD HH24') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'DD HH24')
select id, to_char(cast(ts as timestamp), 'YYYY MI SS') from moment
select to_char(cast(tz as timestamp), 'YYYY MI SS') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'YYYY MI SS')
select to_char(cast(tz as timestamp), 'IYYY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'IYYY')
select to_char(cast(tz as timestamp), 'DDD') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'DDD')
select id, to_char(cast(ts as timestamp), 'HH24:MI:SS') from moment
select to_char(cast(tz as timestamp), 'HH24:MI:SS') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'HH24:MI:SS')
select id, to_char(cast(ts as timestamp), 'FMDDD') from moment
select to_char(cast(tz as timestamp), 'FMDDD') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'FMDDD')
select id, to_char(cast(ts as timestamp), 'FMMI') from moment
select to_char(cast(tz as timestamp), 'FMMI') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'FMMI')
select id, to_char(cast(ts as timestamp), 'FMSS') from moment
select to_char(cast(tz as timestamp), 'FMSS') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'FMSS')
select to_char(cast(tz as timestamp), 'Dy') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'Dy')
select id, to_char(cast(ts as timestamp), 'FMDy FMMon') from moment
select to_char(cast(tz as timestamp), 'FMDy FMMon') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'FMDy FMMon')
select id, to_char(cast(ts as timestamp), 'HH AM') from moment
select to_char(cast(tz as timestamp), 'HH AM') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'HH AM')
select id, to_char(cast(ts as timestamp), '"50%" DD') from moment
select to_char(cast(tz as timestamp), '"50%" DD') from moment
select to_char(timestamp '2005-05-07 14:05:06', '"50%" DD')
select id, to_char(cast(ts as timestamp), 'DD%') from moment
select to_char(cast(tz as timestamp), 'DD%') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'DD%')
select id, to_char(cast(ts as timestamp), '"a\b" DD') from moment
select to_char(cast(tz as timestamp), '"a\b" DD') from moment
select to_char(timestamp '2005-05-07 14:05:06', '"a\b" DD')
select id, to_char(cast(ts as timestamp), 'DD"th"') from moment
select to_char(cast(tz as timestamp), 'DD"th"') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'DD"th"')
select id, to_char(cast(ts as timestamp), 'FMYYYY') from moment
select to_char(cast(tz as timestamp), 'FMYYYY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'FMYYYY')
select to_char(cast(tz as timestamp), 'YY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'YY')
select to_char(cast(tz as timestamp), 'IY') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'IY')
select to_char(cast(tz as timestamp), 'MM') from moment
select to_char(timestamp '2005-05-07 14:05:06', 'MM')
-- Numbers and others.
select id, to_char(n, '999') from kind where id != 5 and id != 6
select id, to_char(n, '9999999999') from kind where id != 5 and id != 6
select id, to_char(d, '999.99') from kind where id != 5 and id != 6
select id, to_char(d, 'FM999.00') from kind where id != 5 and id != 6
select id, to_char(n, '000') from kind where id != 5 and id != 6
select id, to_char(d, '9,999.99') from kind where id != 5 and id != 6
select id, to_char(f, '9.99EEEE') from kind where id != 5 and id != 6
select id, to_char(n, 'S999') from kind where id != 5 and id != 6
select id, to_char(n, 'RN') from kind where id != 5 and id != 6
select id, to_char(tm, 'HH24:MI') from kind where id != 5 and id != 6
select id, to_char(day, 'YYYY') from kind where id != 5 and id != 6
select id, to_char(ts, v) from kind where id != 5 and id != 6
select id, to_char(ts + interval '1 day', 'YYYY-MM-DD') from kind where id != 5 and id != 6
select id, to_char(day + 1, 'YYYY-MM-DD') from kind where id != 5 and id != 6
select id, to_char(cast(day as timestamp), 'YYYY') from kind where id != 5 and id != 6
select id, to_char(ts - interval '1 month', 'MM') from kind where id != 5 and id != 6
select to_char(12, '99')
select to_char(125.8, '999D9')
select to_char(interval '2 hours', 'HH24:MI')
select to_char(interval '15:02:12', 'HH24:MI:SS')
select to_char(date '2005-01-31', 'DD')
select to_char(timestamp '2005-01-31 00:00:00', 'HH12')
select to_char(timestamp '2005-01-31 12:00:00', 'HH12 AM')
select to_char(time '10:20:30', 'HH24')
select to_char(-0.5, '9.99')
