-- Written by truth/run --pairs; see truth/pairs.py.
select id, n1 * n2 * n3 from operand
select id, n1 * n2 / n3 from operand
select id, n1 * n2 % n3 from operand
select id, n1 * n2 + n3 from operand
select id, n1 * n2 - n3 from operand
select id, n1 * n2 ^ n3 from operand
select id, n1 * n2 < n3 from operand
select id, n1 * n2 > n3 from operand
select id, n1 * n2 <= n3 from operand
select id, n1 * n2 >= n3 from operand
select id, n1 * n2 = n3 from operand
select id, n1 * n2 != n3 from operand
select id, n1 * n2 << n3 from operand
select id, n1 * n2 >> n3 from operand
select id, n1 * n2 || s3 from operand
select id, n1 * n2 & n3 from operand
select id, n1 * n2 | n3 from operand
select id, n1 * n2 # n3 from operand
select id, n1 * n2 IS DISTINCT FROM n3 from operand
select id, n1 / n2 * n3 from operand
select id, n1 / n2 / n3 from operand
select id, n1 / n2 % n3 from operand
select id, n1 / n2 + n3 from operand
select id, n1 / n2 - n3 from operand
select id, n1 / n2 ^ n3 from operand
select id, n1 / n2 < n3 from operand
select id, n1 / n2 > n3 from operand
select id, n1 / n2 <= n3 from operand
select id, n1 / n2 >= n3 from operand
select id, n1 / n2 = n3 from operand
select id, n1 / n2 != n3 from operand
select id, n1 / n2 << n3 from operand
select id, n1 / n2 >> n3 from operand
select id, n1 / n2 || s3 from operand
select id, n1 / n2 & n3 from operand
select id, n1 / n2 | n3 from operand
select id, n1 / n2 # n3 from operand
select id, n1 / n2 IS DISTINCT FROM n3 from operand
select id, n1 % n2 * n3 from operand
select id, n1 % n2 / n3 from operand
select id, n1 % n2 % n3 from operand
select id, n1 % n2 + n3 from operand
select id, n1 % n2 - n3 from operand
select id, n1 % n2 < n3 from operand
select id, n1 % n2 > n3 from operand
select id, n1 % n2 <= n3 from operand
select id, n1 % n2 >= n3 from operand
select id, n1 % n2 = n3 from operand
select id, n1 % n2 != n3 from operand
select id, n1 % n2 << n3 from operand
select id, n1 % n2 >> n3 from operand
select id, n1 % n2 || s3 from operand
select id, n1 % n2 & n3 from operand
select id, n1 % n2 | n3 from operand
select id, n1 % n2 # n3 from operand
select id, n1 % n2 IS DISTINCT FROM n3 from operand
select id, n1 + n2 * n3 from operand
select id, n1 + n2 / n3 from operand
select id, n1 + n2 % n3 from operand
select id, n1 + n2 + n3 from operand
select id, n1 + n2 - n3 from operand
select id, n1 + n2 ^ n3 from operand
select id, n1 + n2 < n3 from operand
select id, n1 + n2 > n3 from operand
select id, n1 + n2 <= n3 from operand
select id, n1 + n2 >= n3 from operand
select id, n1 + n2 = n3 from operand
select id, n1 + n2 != n3 from operand
select id, n1 + n2 << n3 from operand
select id, n1 + n2 >> n3 from operand
select id, n1 + n2 || s3 from operand
select id, n1 + n2 & n3 from operand
select id, n1 + n2 | n3 from operand
select id, n1 + n2 # n3 from operand
select id, n1 + n2 IS DISTINCT FROM n3 from operand
select id, n1 - n2 * n3 from operand
select id, n1 - n2 / n3 from operand
select id, n1 - n2 % n3 from operand
select id, n1 - n2 + n3 from operand
select id, n1 - n2 - n3 from operand
select id, n1 - n2 ^ n3 from operand
select id, n1 - n2 < n3 from operand
select id, n1 - n2 > n3 from operand
select id, n1 - n2 <= n3 from operand
select id, n1 - n2 >= n3 from operand
select id, n1 - n2 = n3 from operand
select id, n1 - n2 != n3 from operand
select id, n1 - n2 << n3 from operand
select id, n1 - n2 >> n3 from operand
select id, n1 - n2 || s3 from operand
select id, n1 - n2 & n3 from operand
select id, n1 - n2 | n3 from operand
select id, n1 - n2 # n3 from operand
select id, n1 - n2 IS DISTINCT FROM n3 from operand
select id, n1 ^ n2 * n3 from operand
select id, n1 ^ n2 / n3 from operand
select id, n1 ^ n2 + n3 from operand
select id, n1 ^ n2 - n3 from operand
select id, n1 ^ n2 ^ n3 from operand
select id, n1 ^ n2 < n3 from operand
select id, n1 ^ n2 > n3 from operand
select id, n1 ^ n2 <= n3 from operand
select id, n1 ^ n2 >= n3 from operand
select id, n1 ^ n2 = n3 from operand
select id, n1 ^ n2 != n3 from operand
select id, n1 ^ n2 || s3 from operand
select id, n1 ^ n2 IS DISTINCT FROM n3 from operand
select id, n1 < n2 * n3 from operand
select id, n1 < n2 / n3 from operand
select id, n1 < n2 % n3 from operand
select id, n1 < n2 + n3 from operand
select id, n1 < n2 - n3 from operand
select id, n1 < n2 ^ n3 from operand
select id, n1 < n2 << n3 from operand
select id, n1 < n2 >> n3 from operand
select id, s1 < n2 || s3 from operand
select id, n1 < n2 & n3 from operand
select id, n1 < n2 | n3 from operand
select id, n1 < n2 # n3 from operand
select id, s1 < s2 AND b3 from operand
select id, n1 < n2 OR b3 from operand
select id, b1 < s2 LIKE s3 from operand
select id, b1 < s2 NOT LIKE s3 from operand
select id, b1 < s2 ILIKE s3 from operand
select id, b1 < s2 NOT ILIKE s3 from operand
select id, b1 < s2 SIMILAR TO s3 from operand
select id, b1 < s2 ~ s3 from operand
select id, b1 < s2 ~* s3 from operand
select id, b1 < s2 !~ s3 from operand
select id, b1 < s2 !~* s3 from operand
select id, n1 < n2 IS DISTINCT FROM b3 from operand
select id, n1 > n2 * n3 from operand
select id, n1 > n2 / n3 from operand
select id, n1 > n2 % n3 from operand
select id, n1 > n2 + n3 from operand
select id, n1 > n2 - n3 from operand
select id, n1 > n2 ^ n3 from operand
select id, n1 > n2 << n3 from operand
select id, n1 > n2 >> n3 from operand
select id, s1 > n2 || s3 from operand
select id, n1 > n2 & n3 from operand
select id, n1 > n2 | n3 from operand
select id, n1 > n2 # n3 from operand
select id, n1 > n2 AND b3 from operand
select id, n1 > n2 OR b3 from operand
select id, b1 > s2 LIKE s3 from operand
select id, b1 > s2 NOT LIKE s3 from operand
select id, b1 > s2 ILIKE s3 from operand
select id, b1 > s2 NOT ILIKE s3 from operand
select id, b1 > s2 SIMILAR TO s3 from operand
select id, b1 > s2 ~ s3 from operand
select id, b1 > s2 ~* s3 from operand
select id, b1 > s2 !~ s3 from operand
select id, b1 > s2 !~* s3 from operand
select id, n1 > n2 IS DISTINCT FROM b3 from operand
select id, n1 <= n2 * n3 from operand
select id, n1 <= n2 / n3 from operand
select id, n1 <= n2 % n3 from operand
select id, n1 <= n2 + n3 from operand
select id, n1 <= n2 - n3 from operand
select id, n1 <= n2 ^ n3 from operand
select id, n1 <= n2 << n3 from operand
select id, n1 <= n2 >> n3 from operand
select id, s1 <= n2 || s3 from operand
select id, n1 <= n2 & n3 from operand
select id, n1 <= n2 | n3 from operand
select id, n1 <= n2 # n3 from operand
select id, n1 <= n2 AND b3 from operand
select id, n1 <= n2 OR b3 from operand
select id, b1 <= s2 LIKE s3 from operand
select id, b1 <= s2 NOT LIKE s3 from operand
select id, b1 <= s2 ILIKE s3 from operand
select id, b1 <= s2 NOT ILIKE s3 from operand
select id, b1 <= s2 SIMILAR TO s3 from operand
select id, b1 <= s2 ~ s3 from operand
select id, b1 <= s2 ~* s3 from operand
select id, b1 <= s2 !~ s3 from operand
select id, b1 <= s2 !~* s3 from operand
select id, n1 <= n2 IS DISTINCT FROM b3 from operand
select id, n1 >= n2 * n3 from operand
select id, n1 >= n2 / n3 from operand
select id, n1 >= n2 % n3 from operand
select id, n1 >= n2 + n3 from operand
select id, n1 >= n2 - n3 from operand
select id, n1 >= n2 ^ n3 from operand
select id, n1 >= n2 << n3 from operand
select id, n1 >= n2 >> n3 from operand
select id, s1 >= n2 || s3 from operand
select id, n1 >= n2 & n3 from operand
select id, n1 >= n2 | n3 from operand
select id, n1 >= n2 # n3 from operand
select id, n1 >= n2 AND b3 from operand
select id, n1 >= n2 OR b3 from operand
select id, b1 >= s2 LIKE s3 from operand
select id, b1 >= s2 NOT LIKE s3 from operand
select id, b1 >= s2 ILIKE s3 from operand
select id, b1 >= s2 NOT ILIKE s3 from operand
select id, b1 >= s2 SIMILAR TO s3 from operand
select id, b1 >= s2 ~ s3 from operand
select id, b1 >= s2 ~* s3 from operand
select id, b1 >= s2 !~ s3 from operand
select id, b1 >= s2 !~* s3 from operand
select id, n1 >= n2 IS DISTINCT FROM b3 from operand
select id, n1 = n2 * n3 from operand
select id, n1 = n2 / n3 from operand
select id, n1 = n2 % n3 from operand
select id, n1 = n2 + n3 from operand
select id, n1 = n2 - n3 from operand
select id, n1 = n2 ^ n3 from operand
select id, n1 = n2 << n3 from operand
select id, n1 = n2 >> n3 from operand
select id, s1 = s2 || s3 from operand
select id, n1 = n2 & n3 from operand
select id, n1 = n2 | n3 from operand
select id, n1 = n2 # n3 from operand
select id, n1 = n2 AND b3 from operand
select id, n1 = n2 OR b3 from operand
select id, b1 = s2 LIKE s3 from operand
select id, b1 = s2 NOT LIKE s3 from operand
select id, b1 = s2 ILIKE s3 from operand
select id, b1 = s2 NOT ILIKE s3 from operand
select id, b1 = s2 SIMILAR TO s3 from operand
select id, b1 = s2 ~ s3 from operand
select id, b1 = s2 ~* s3 from operand
select id, b1 = s2 !~ s3 from operand
select id, b1 = s2 !~* s3 from operand
select id, n1 = n2 IS DISTINCT FROM b3 from operand
select id, n1 != n2 * n3 from operand
select id, n1 != n2 / n3 from operand
select id, n1 != n2 % n3 from operand
select id, n1 != n2 + n3 from operand
select id, n1 != n2 - n3 from operand
select id, n1 != n2 ^ n3 from operand
select id, n1 != n2 << n3 from operand
select id, n1 != n2 >> n3 from operand
select id, s1 != s2 || s3 from operand
select id, n1 != n2 & n3 from operand
select id, n1 != n2 | n3 from operand
select id, n1 != n2 # n3 from operand
select id, n1 != n2 AND b3 from operand
select id, b1 != b2 OR b3 from operand
select id, b1 != s2 LIKE s3 from operand
select id, b1 != s2 NOT LIKE s3 from operand
select id, b1 != s2 ILIKE s3 from operand
select id, b1 != s2 NOT ILIKE s3 from operand
select id, b1 != s2 SIMILAR TO s3 from operand
select id, b1 != s2 ~ s3 from operand
select id, b1 != s2 ~* s3 from operand
select id, b1 != s2 !~ s3 from operand
select id, b1 != s2 !~* s3 from operand
select id, n1 != n2 IS DISTINCT FROM b3 from operand
select id, n1 << n2 * n3 from operand
select id, n1 << n2 / n3 from operand
select id, n1 << n2 % n3 from operand
select id, n1 << n2 + n3 from operand
select id, n1 << n2 - n3 from operand
select id, n1 << n2 < n3 from operand
select id, n1 << n2 > n3 from operand
select id, n1 << n2 <= n3 from operand
select id, n1 << n2 >= n3 from operand
select id, n1 << n2 = n3 from operand
select id, n1 << n2 != n3 from operand
select id, n1 << n2 << n3 from operand
select id, n1 << n2 >> n3 from operand
select id, n1 << n2 || s3 from operand
select id, n1 << n2 & n3 from operand
select id, n1 << n2 | n3 from operand
select id, n1 << n2 # n3 from operand
select id, n1 << n2 IS DISTINCT FROM n3 from operand
select id, n1 >> n2 * n3 from operand
select id, n1 >> n2 / n3 from operand
select id, n1 >> n2 % n3 from operand
select id, n1 >> n2 + n3 from operand
select id, n1 >> n2 - n3 from operand
select id, n1 >> n2 < n3 from operand
select id, n1 >> n2 > n3 from operand
select id, n1 >> n2 <= n3 from operand
select id, n1 >> n2 >= n3 from operand
select id, n1 >> n2 = n3 from operand
select id, n1 >> n2 != n3 from operand
select id, n1 >> n2 << n3 from operand
select id, n1 >> n2 >> n3 from operand
select id, n1 >> n2 || s3 from operand
select id, n1 >> n2 & n3 from operand
select id, n1 >> n2 | n3 from operand
select id, n1 >> n2 # n3 from operand
select id, n1 >> n2 IS DISTINCT FROM n3 from operand
select id, s1 || n2 * n3 from operand
select id, s1 || n2 / n3 from operand
select id, s1 || n2 % n3 from operand
select id, s1 || n2 + n3 from operand
select id, s1 || n2 - n3 from operand
select id, s1 || n2 ^ n3 from operand
select id, n1 || s2 < s3 from operand
select id, n1 || s2 > s3 from operand
select id, n1 || s2 <= s3 from operand
select id, n1 || s2 >= s3 from operand
select id, s1 || s2 = s3 from operand
select id, s1 || s2 != s3 from operand
select id, n1 || s2 || n3 from operand
select id, s1 || n2 LIKE s3 from operand
select id, s1 || n2 NOT LIKE s3 from operand
select id, n1 || s2 ILIKE s3 from operand
select id, n1 || s2 NOT ILIKE s3 from operand
select id, s1 || n2 SIMILAR TO s3 from operand
select id, n1 || s2 ~ s3 from operand
select id, n1 || s2 ~* s3 from operand
select id, n1 || s2 !~ s3 from operand
select id, n1 || s2 !~* s3 from operand
select id, s1 || s2 IS DISTINCT FROM s3 from operand
select id, n1 & n2 * n3 from operand
select id, n1 & n2 / n3 from operand
select id, n1 & n2 % n3 from operand
select id, n1 & n2 + n3 from operand
select id, n1 & n2 - n3 from operand
select id, n1 & n2 < n3 from operand
select id, n1 & n2 > n3 from operand
select id, n1 & n2 <= n3 from operand
select id, n1 & n2 >= n3 from operand
select id, n1 & n2 = n3 from operand
select id, n1 & n2 != n3 from operand
select id, n1 & n2 << n3 from operand
select id, n1 & n2 >> n3 from operand
select id, n1 & n2 || s3 from operand
select id, n1 & n2 & n3 from operand
select id, n1 & n2 | n3 from operand
select id, n1 & n2 # n3 from operand
select id, n1 & n2 IS DISTINCT FROM n3 from operand
select id, n1 | n2 * n3 from operand
select id, n1 | n2 / n3 from operand
select id, n1 | n2 % n3 from operand
select id, n1 | n2 + n3 from operand
select id, n1 | n2 - n3 from operand
select id, n1 | n2 < n3 from operand
select id, n1 | n2 > n3 from operand
select id, n1 | n2 <= n3 from operand
select id, n1 | n2 >= n3 from operand
select id, n1 | n2 = n3 from operand
select id, n1 | n2 != n3 from operand
select id, n1 | n2 << n3 from operand
select id, n1 | n2 >> n3 from operand
select id, n1 | n2 || s3 from operand
select id, n1 | n2 & n3 from operand
select id, n1 | n2 | n3 from operand
select id, n1 | n2 # n3 from operand
select id, n1 | n2 IS DISTINCT FROM n3 from operand
select id, n1 # n2 * n3 from operand
select id, n1 # n2 / n3 from operand
select id, n1 # n2 % n3 from operand
select id, n1 # n2 + n3 from operand
select id, n1 # n2 - n3 from operand
select id, n1 # n2 < n3 from operand
select id, n1 # n2 > n3 from operand
select id, n1 # n2 <= n3 from operand
select id, n1 # n2 >= n3 from operand
select id, n1 # n2 = n3 from operand
select id, n1 # n2 != n3 from operand
select id, n1 # n2 << n3 from operand
select id, n1 # n2 >> n3 from operand
select id, n1 # n2 || s3 from operand
select id, n1 # n2 & n3 from operand
select id, n1 # n2 | n3 from operand
select id, n1 # n2 # n3 from operand
select id, n1 # n2 IS DISTINCT FROM n3 from operand
select id, b1 AND n2 < n3 from operand
select id, b1 AND n2 > n3 from operand
select id, b1 AND n2 <= n3 from operand
select id, b1 AND n2 >= n3 from operand
select id, b1 AND b2 = b3 from operand
select id, b1 AND n2 != n3 from operand
select id, b1 AND b2 AND b3 from operand
select id, b1 AND b2 OR b3 from operand
select id, b1 AND s2 LIKE s3 from operand
select id, b1 AND s2 NOT LIKE s3 from operand
select id, b1 AND s2 ILIKE s3 from operand
select id, b1 AND s2 NOT ILIKE s3 from operand
select id, b1 AND s2 SIMILAR TO s3 from operand
select id, b1 AND s2 ~ s3 from operand
select id, b1 AND s2 ~* s3 from operand
select id, b1 AND s2 !~ s3 from operand
select id, b1 AND s2 !~* s3 from operand
select id, b1 AND n2 IS DISTINCT FROM n3 from operand
select id, b1 OR n2 < n3 from operand
select id, b1 OR n2 > n3 from operand
select id, b1 OR n2 <= n3 from operand
select id, b1 OR n2 >= n3 from operand
select id, b1 OR n2 = n3 from operand
select id, b1 OR n2 != n3 from operand
select id, b1 OR b2 AND b3 from operand
select id, b1 OR b2 OR b3 from operand
select id, b1 OR s2 LIKE s3 from operand
select id, b1 OR s2 NOT LIKE s3 from operand
select id, b1 OR s2 ILIKE s3 from operand
select id, b1 OR s2 NOT ILIKE s3 from operand
select id, b1 OR s2 SIMILAR TO s3 from operand
select id, b1 OR s2 ~ s3 from operand
select id, b1 OR s2 ~* s3 from operand
select id, b1 OR s2 !~ s3 from operand
select id, b1 OR s2 !~* s3 from operand
select id, b1 OR n2 IS DISTINCT FROM n3 from operand
select id, s1 LIKE s2 < b3 from operand
select id, s1 LIKE s2 > b3 from operand
select id, s1 LIKE s2 <= b3 from operand
select id, s1 LIKE s2 >= b3 from operand
select id, s1 LIKE s2 = b3 from operand
select id, s1 LIKE s2 != b3 from operand
select id, s1 LIKE s2 || s3 from operand
select id, s1 LIKE s2 AND b3 from operand
select id, s1 LIKE s2 OR b3 from operand
select id, s1 LIKE s2 IS DISTINCT FROM b3 from operand
select id, s1 NOT LIKE s2 < b3 from operand
select id, s1 NOT LIKE s2 > b3 from operand
select id, s1 NOT LIKE s2 <= b3 from operand
select id, s1 NOT LIKE s2 >= b3 from operand
select id, s1 NOT LIKE s2 = b3 from operand
select id, s1 NOT LIKE s2 != b3 from operand
select id, s1 NOT LIKE s2 || s3 from operand
select id, s1 NOT LIKE s2 AND b3 from operand
select id, s1 NOT LIKE s2 OR b3 from operand
select id, s1 NOT LIKE s2 IS DISTINCT FROM b3 from operand
select id, s1 ILIKE s2 < b3 from operand
select id, s1 ILIKE s2 > b3 from operand
select id, s1 ILIKE s2 <= b3 from operand
select id, s1 ILIKE s2 >= b3 from operand
select id, s1 ILIKE s2 = b3 from operand
select id, s1 ILIKE s2 != b3 from operand
select id, s1 ILIKE s2 || s3 from operand
select id, s1 ILIKE s2 AND b3 from operand
select id, s1 ILIKE s2 OR b3 from operand
select id, s1 ILIKE s2 IS DISTINCT FROM b3 from operand
select id, s1 NOT ILIKE s2 < b3 from operand
select id, s1 NOT ILIKE s2 > b3 from operand
select id, s1 NOT ILIKE s2 <= b3 from operand
select id, s1 NOT ILIKE s2 >= b3 from operand
select id, s1 NOT ILIKE s2 = b3 from operand
select id, s1 NOT ILIKE s2 != b3 from operand
select id, s1 NOT ILIKE s2 || s3 from operand
select id, s1 NOT ILIKE s2 AND b3 from operand
select id, s1 NOT ILIKE s2 OR b3 from operand
select id, s1 NOT ILIKE s2 IS DISTINCT FROM b3 from operand
select id, s1 SIMILAR TO s2 < b3 from operand
select id, s1 SIMILAR TO s2 > b3 from operand
select id, s1 SIMILAR TO s2 <= b3 from operand
select id, s1 SIMILAR TO s2 >= b3 from operand
select id, s1 SIMILAR TO s2 = b3 from operand
select id, s1 SIMILAR TO s2 != b3 from operand
select id, s1 SIMILAR TO s2 || s3 from operand
select id, s1 SIMILAR TO s2 AND b3 from operand
select id, s1 SIMILAR TO s2 OR b3 from operand
select id, s1 SIMILAR TO s2 IS DISTINCT FROM b3 from operand
select id, s1 ~ s2 < b3 from operand
select id, s1 ~ s2 > b3 from operand
select id, s1 ~ s2 <= b3 from operand
select id, s1 ~ s2 >= b3 from operand
select id, s1 ~ s2 = b3 from operand
select id, s1 ~ s2 != b3 from operand
select id, s1 ~ s2 || s3 from operand
select id, s1 ~ s2 AND b3 from operand
select id, s1 ~ s2 OR b3 from operand
select id, s1 ~ s2 IS DISTINCT FROM b3 from operand
select id, s1 ~* s2 < b3 from operand
select id, s1 ~* s2 > b3 from operand
select id, s1 ~* s2 <= b3 from operand
select id, s1 ~* s2 >= b3 from operand
select id, s1 ~* s2 = b3 from operand
select id, s1 ~* s2 != b3 from operand
select id, s1 ~* s2 || s3 from operand
select id, s1 ~* s2 AND b3 from operand
select id, s1 ~* s2 OR b3 from operand
select id, s1 ~* s2 IS DISTINCT FROM b3 from operand
select id, s1 !~ s2 < b3 from operand
select id, s1 !~ s2 > b3 from operand
select id, s1 !~ s2 <= b3 from operand
select id, s1 !~ s2 >= b3 from operand
select id, s1 !~ s2 = b3 from operand
select id, s1 !~ s2 != b3 from operand
select id, s1 !~ s2 || s3 from operand
select id, s1 !~ s2 AND b3 from operand
select id, s1 !~ s2 OR b3 from operand
select id, s1 !~ s2 IS DISTINCT FROM b3 from operand
select id, s1 !~* s2 < b3 from operand
select id, s1 !~* s2 > b3 from operand
select id, s1 !~* s2 <= b3 from operand
select id, s1 !~* s2 >= b3 from operand
select id, s1 !~* s2 = b3 from operand
select id, s1 !~* s2 != b3 from operand
select id, s1 !~* s2 || s3 from operand
select id, s1 !~* s2 AND b3 from operand
select id, s1 !~* s2 OR b3 from operand
select id, s1 !~* s2 IS DISTINCT FROM b3 from operand
select id, n1 IS DISTINCT FROM n2 * n3 from operand
select id, n1 IS DISTINCT FROM n2 / n3 from operand
select id, n1 IS DISTINCT FROM n2 % n3 from operand
select id, n1 IS DISTINCT FROM n2 + n3 from operand
select id, n1 IS DISTINCT FROM n2 - n3 from operand
select id, n1 IS DISTINCT FROM n2 ^ n3 from operand
select id, b1 IS DISTINCT FROM n2 < n3 from operand
select id, b1 IS DISTINCT FROM n2 > n3 from operand
select id, b1 IS DISTINCT FROM n2 <= n3 from operand
select id, b1 IS DISTINCT FROM n2 >= n3 from operand
select id, b1 IS DISTINCT FROM n2 = n3 from operand
select id, b1 IS DISTINCT FROM n2 != n3 from operand
select id, n1 IS DISTINCT FROM n2 << n3 from operand
select id, n1 IS DISTINCT FROM n2 >> n3 from operand
select id, s1 IS DISTINCT FROM s2 || s3 from operand
select id, n1 IS DISTINCT FROM n2 & n3 from operand
select id, n1 IS DISTINCT FROM n2 | n3 from operand
select id, n1 IS DISTINCT FROM n2 # n3 from operand
select id, n1 IS DISTINCT FROM n2 AND b3 from operand
select id, b1 IS DISTINCT FROM b2 OR b3 from operand
select id, b1 IS DISTINCT FROM s2 LIKE s3 from operand
select id, b1 IS DISTINCT FROM s2 NOT LIKE s3 from operand
select id, b1 IS DISTINCT FROM s2 ILIKE s3 from operand
select id, b1 IS DISTINCT FROM s2 NOT ILIKE s3 from operand
select id, b1 IS DISTINCT FROM s2 SIMILAR TO s3 from operand
select id, b1 IS DISTINCT FROM s2 ~ s3 from operand
select id, b1 IS DISTINCT FROM s2 ~* s3 from operand
select id, b1 IS DISTINCT FROM s2 !~ s3 from operand
select id, b1 IS DISTINCT FROM s2 !~* s3 from operand
select id, - n1 * n2 from operand
select id, n1 * - n2 from operand
select id, - n1 / n2 from operand
select id, n1 / - n2 from operand
select id, - n1 % n2 from operand
select id, n1 % - n2 from operand
select id, - n1 + n2 from operand
select id, n1 + - n2 from operand
select id, - n1 - n2 from operand
select id, n1 - - n2 from operand
select id, - n1 ^ n2 from operand
select id, n1 ^ - n2 from operand
select id, - n1 < n2 from operand
select id, n1 < - n2 from operand
select id, - n1 > n2 from operand
select id, n1 > - n2 from operand
select id, - n1 <= n2 from operand
select id, n1 <= - n2 from operand
select id, - n1 >= n2 from operand
select id, n1 >= - n2 from operand
select id, - n1 = n2 from operand
select id, n1 = - n2 from operand
select id, - n1 != n2 from operand
select id, n1 != - n2 from operand
select id, - n1 << n2 from operand
select id, n1 << - n2 from operand
select id, - n1 >> n2 from operand
select id, n1 >> - n2 from operand
select id, - n1 || s2 from operand
select id, s1 || - n2 from operand
select id, - n1 & n2 from operand
select id, n1 & - n2 from operand
select id, - n1 | n2 from operand
select id, n1 | - n2 from operand
select id, - n1 # n2 from operand
select id, n1 # - n2 from operand
select id, - n1 IS DISTINCT FROM n2 from operand
select id, n1 IS DISTINCT FROM - n2 from operand
select id, NOT n1 < n2 from operand
select id, b1 < NOT b2 from operand
select id, NOT n1 > n2 from operand
select id, b1 > NOT b2 from operand
select id, NOT n1 <= n2 from operand
select id, b1 <= NOT b2 from operand
select id, NOT n1 >= n2 from operand
select id, b1 >= NOT b2 from operand
select id, NOT n1 = n2 from operand
select id, b1 = NOT b2 from operand
select id, NOT n1 != n2 from operand
select id, b1 != NOT b2 from operand
select id, s1 || NOT b2 from operand
select id, NOT b1 AND b2 from operand
select id, b1 AND NOT b2 from operand
select id, NOT b1 OR b2 from operand
select id, b1 OR NOT b2 from operand
select id, NOT s1 LIKE s2 from operand
select id, NOT s1 NOT LIKE s2 from operand
select id, NOT s1 ILIKE s2 from operand
select id, NOT s1 NOT ILIKE s2 from operand
select id, NOT s1 SIMILAR TO s2 from operand
select id, NOT s1 ~ s2 from operand
select id, NOT s1 ~* s2 from operand
select id, NOT s1 !~ s2 from operand
select id, NOT s1 !~* s2 from operand
select id, NOT n1 IS DISTINCT FROM n2 from operand
select id, b1 IS DISTINCT FROM NOT b2 from operand
select id, @ n1 * n2 from operand
select id, n1 * @ n2 from operand
select id, @ n1 / n2 from operand
select id, n1 / @ n2 from operand
select id, @ n1 % n2 from operand
select id, n1 % @ n2 from operand
select id, @ n1 + n2 from operand
select id, n1 + @ n2 from operand
select id, @ n1 - n2 from operand
select id, n1 - @ n2 from operand
select id, @ n1 ^ n2 from operand
select id, n1 ^ @ n2 from operand
select id, @ n1 < n2 from operand
select id, n1 < @ n2 from operand
select id, @ n1 > n2 from operand
select id, n1 > @ n2 from operand
select id, @ n1 <= n2 from operand
select id, n1 <= @ n2 from operand
select id, @ n1 >= n2 from operand
select id, n1 >= @ n2 from operand
select id, @ n1 = n2 from operand
select id, n1 = @ n2 from operand
select id, @ n1 != n2 from operand
select id, n1 != @ n2 from operand
select id, @ n1 << n2 from operand
select id, n1 << @ n2 from operand
select id, @ n1 >> n2 from operand
select id, n1 >> @ n2 from operand
select id, @ n1 || s2 from operand
select id, s1 || @ n2 from operand
select id, @ n1 & n2 from operand
select id, n1 & @ n2 from operand
select id, @ n1 | n2 from operand
select id, n1 | @ n2 from operand
select id, @ n1 # n2 from operand
select id, n1 # @ n2 from operand
select id, @ n1 IS DISTINCT FROM n2 from operand
select id, n1 IS DISTINCT FROM @ n2 from operand
select id, n1 * |/ n2 from operand
select id, n1 / |/ n2 from operand
select id, n1 + |/ n2 from operand
select id, n1 - |/ n2 from operand
select id, n1 < |/ n2 from operand
select id, n1 > |/ n2 from operand
select id, n1 <= |/ n2 from operand
select id, n1 >= |/ n2 from operand
select id, n1 = |/ n2 from operand
select id, n1 != |/ n2 from operand
select id, s1 || |/ n2 from operand
select id, n1 IS DISTINCT FROM |/ n2 from operand
select id, ||/ n1 * n2 from operand
select id, n1 * ||/ n2 from operand
select id, ||/ n1 / n2 from operand
select id, n1 / ||/ n2 from operand
select id, ||/ n1 % n2 from operand
select id, ||/ n1 + n2 from operand
select id, n1 + ||/ n2 from operand
select id, ||/ n1 - n2 from operand
select id, n1 - ||/ n2 from operand
select id, ||/ n1 ^ n2 from operand
select id, ||/ n1 < n2 from operand
select id, n1 < ||/ n2 from operand
select id, ||/ n1 > n2 from operand
select id, n1 > ||/ n2 from operand
select id, ||/ n1 <= n2 from operand
select id, n1 <= ||/ n2 from operand
select id, ||/ n1 >= n2 from operand
select id, n1 >= ||/ n2 from operand
select id, ||/ n1 = n2 from operand
select id, n1 = ||/ n2 from operand
select id, ||/ n1 != n2 from operand
select id, n1 != ||/ n2 from operand
select id, ||/ n1 || s2 from operand
select id, s1 || ||/ n2 from operand
select id, ||/ n1 IS DISTINCT FROM n2 from operand
select id, n1 IS DISTINCT FROM ||/ n2 from operand
select id, ~ n1 * n2 from operand
select id, n1 * ~ n2 from operand
select id, ~ n1 / n2 from operand
select id, n1 / ~ n2 from operand
select id, ~ n1 % n2 from operand
select id, n1 % ~ n2 from operand
select id, ~ n1 + n2 from operand
select id, n1 + ~ n2 from operand
select id, ~ n1 - n2 from operand
select id, n1 - ~ n2 from operand
select id, n1 ^ ~ n2 from operand
select id, ~ n1 < n2 from operand
select id, n1 < ~ n2 from operand
select id, ~ n1 > n2 from operand
select id, n1 > ~ n2 from operand
select id, ~ n1 <= n2 from operand
select id, n1 <= ~ n2 from operand
select id, ~ n1 >= n2 from operand
select id, n1 >= ~ n2 from operand
select id, ~ n1 = n2 from operand
select id, n1 = ~ n2 from operand
select id, ~ n1 != n2 from operand
select id, n1 != ~ n2 from operand
select id, ~ n1 << n2 from operand
select id, n1 << ~ n2 from operand
select id, ~ n1 >> n2 from operand
select id, n1 >> ~ n2 from operand
select id, ~ n1 || s2 from operand
select id, s1 || ~ n2 from operand
select id, ~ n1 & n2 from operand
select id, n1 & ~ n2 from operand
select id, ~ n1 | n2 from operand
select id, n1 | ~ n2 from operand
select id, ~ n1 # n2 from operand
select id, n1 # ~ n2 from operand
select id, ~ n1 IS DISTINCT FROM n2 from operand
select id, n1 IS DISTINCT FROM ~ n2 from operand
select id, n1 * n2 IS NULL from operand
select id, n1 * n2 IS NOT NULL from operand
select id, n1 * n2::integer from operand
select id, n1::integer * n2 from operand
select id, n1 / n2 IS NULL from operand
select id, n1 / n2 IS NOT NULL from operand
select id, n1 / n2::integer from operand
select id, n1::integer / n2 from operand
select id, n1 % n2 IS NULL from operand
select id, n1 % n2 IS NOT NULL from operand
select id, n1 % n2::integer from operand
select id, n1::integer % n2 from operand
select id, n1 + n2 IS NULL from operand
select id, n1 + n2 IS NOT NULL from operand
select id, n1 + n2::integer from operand
select id, n1::integer + n2 from operand
select id, n1 - n2 IS NULL from operand
select id, n1 - n2 IS NOT NULL from operand
select id, n1 - n2::integer from operand
select id, n1::integer - n2 from operand
select id, n1 ^ n2 IS NULL from operand
select id, n1 ^ n2 IS NOT NULL from operand
select id, n1 ^ n2::integer from operand
select id, n1::integer ^ n2 from operand
select id, n1 < n2 IS NULL from operand
select id, n1 IS NULL < b2 from operand
select id, n1 < n2 IS NOT NULL from operand
select id, n1 IS NOT NULL < b2 from operand
select id, n1 < n2 IS TRUE from operand
select id, b1 IS TRUE < b2 from operand
select id, n1 < n2 IS NOT FALSE from operand
select id, b1 IS NOT FALSE < b2 from operand
select id, n1 < n2::integer from operand
select id, n1::integer < n2 from operand
select id, s1 < n2::text from operand
select id, n1::text < s2 from operand
select id, n1 > n2 IS NULL from operand
select id, n1 IS NULL > b2 from operand
select id, n1 > n2 IS NOT NULL from operand
select id, n1 IS NOT NULL > b2 from operand
select id, n1 > n2 IS TRUE from operand
select id, b1 IS TRUE > b2 from operand
select id, n1 > n2 IS NOT FALSE from operand
select id, b1 IS NOT FALSE > b2 from operand
select id, n1 > n2::integer from operand
select id, n1::integer > n2 from operand
select id, s1 > n2::text from operand
select id, n1::text > s2 from operand
select id, n1 <= n2 IS NULL from operand
select id, n1 IS NULL <= b2 from operand
select id, n1 <= n2 IS NOT NULL from operand
select id, n1 IS NOT NULL <= b2 from operand
select id, n1 <= n2 IS TRUE from operand
select id, b1 IS TRUE <= b2 from operand
select id, n1 <= n2 IS NOT FALSE from operand
select id, b1 IS NOT FALSE <= b2 from operand
select id, n1 <= n2::integer from operand
select id, n1::integer <= n2 from operand
select id, s1 <= n2::text from operand
select id, n1::text <= s2 from operand
select id, n1 >= n2 IS NULL from operand
select id, n1 IS NULL >= b2 from operand
select id, n1 >= n2 IS NOT NULL from operand
select id, n1 IS NOT NULL >= b2 from operand
select id, n1 >= n2 IS TRUE from operand
select id, b1 IS TRUE >= b2 from operand
select id, n1 >= n2 IS NOT FALSE from operand
select id, b1 IS NOT FALSE >= b2 from operand
select id, n1 >= n2::integer from operand
select id, n1::integer >= n2 from operand
select id, s1 >= n2::text from operand
select id, n1::text >= s2 from operand
select id, n1 = n2 IS NULL from operand
select id, n1 IS NULL = b2 from operand
select id, n1 = n2 IS NOT NULL from operand
select id, n1 IS NOT NULL = b2 from operand
select id, n1 = n2 IS TRUE from operand
select id, b1 IS TRUE = b2 from operand
select id, n1 = n2 IS NOT FALSE from operand
select id, b1 IS NOT FALSE = b2 from operand
select id, n1 = n2::integer from operand
select id, n1::integer = n2 from operand
select id, s1 = n2::text from operand
select id, n1::text = s2 from operand
select id, n1 != n2 IS NULL from operand
select id, n1 IS NULL != b2 from operand
select id, n1 != n2 IS NOT NULL from operand
select id, n1 IS NOT NULL != b2 from operand
select id, n1 != n2 IS TRUE from operand
select id, b1 IS TRUE != b2 from operand
select id, n1 != n2 IS NOT FALSE from operand
select id, b1 IS NOT FALSE != b2 from operand
select id, n1 != n2::integer from operand
select id, n1::integer != n2 from operand
select id, s1 != n2::text from operand
select id, n1::text != s2 from operand
select id, n1 << n2 IS NULL from operand
select id, n1 << n2 IS NOT NULL from operand
select id, n1 << n2::integer from operand
select id, n1::integer << n2 from operand
select id, n1 >> n2 IS NULL from operand
select id, n1 >> n2 IS NOT NULL from operand
select id, n1 >> b2::integer from operand
select id, n1::integer >> n2 from operand
select id, n1 || s2 IS NULL from operand
select id, n1 IS NULL || s2 from operand
select id, n1 || s2 IS NOT NULL from operand
select id, n1 IS NOT NULL || s2 from operand
select id, b1 IS TRUE || s2 from operand
select id, b1 IS NOT FALSE || s2 from operand
select id, s1 || n2::integer from operand
select id, n1::integer || s2 from operand
select id, n1 || n2::text from operand
select id, n1::text || n2 from operand
select id, n1 & n2 IS NULL from operand
select id, n1 & n2 IS NOT NULL from operand
select id, n1 & n2::integer from operand
select id, n1::integer & n2 from operand
select id, n1 | n2 IS NULL from operand
select id, n1 | n2 IS NOT NULL from operand
select id, n1 | b2::integer from operand
select id, n1::integer | n2 from operand
select id, n1 # n2 IS NULL from operand
select id, n1 # n2 IS NOT NULL from operand
select id, n1 # n2::integer from operand
select id, n1::integer # n2 from operand
select id, b1 AND n2 IS NULL from operand
select id, n1 IS NULL AND b2 from operand
select id, b1 AND n2 IS NOT NULL from operand
select id, n1 IS NOT NULL AND b2 from operand
select id, b1 AND b2 IS TRUE from operand
select id, b1 IS TRUE AND b2 from operand
select id, b1 AND b2 IS NOT FALSE from operand
select id, b1 IS NOT FALSE AND b2 from operand
select id, b1 OR n2 IS NULL from operand
select id, n1 IS NULL OR b2 from operand
select id, b1 OR n2 IS NOT NULL from operand
select id, n1 IS NOT NULL OR b2 from operand
select id, b1 OR b2 IS TRUE from operand
select id, b1 IS TRUE OR b2 from operand
select id, b1 OR b2 IS NOT FALSE from operand
select id, b1 IS NOT FALSE OR b2 from operand
select id, s1 LIKE s2 IS NULL from operand
select id, s1 LIKE s2 IS NOT NULL from operand
select id, s1 LIKE s2 IS TRUE from operand
select id, s1 LIKE s2 IS NOT FALSE from operand
select id, s1 LIKE n2::text from operand
select id, n1::text LIKE s2 from operand
select id, s1 NOT LIKE s2 IS NULL from operand
select id, s1 NOT LIKE s2 IS NOT NULL from operand
select id, s1 NOT LIKE s2 IS TRUE from operand
select id, s1 NOT LIKE s2 IS NOT FALSE from operand
select id, s1 NOT LIKE n2::text from operand
select id, n1::text NOT LIKE s2 from operand
select id, s1 ILIKE s2 IS NULL from operand
select id, s1 ILIKE s2 IS NOT NULL from operand
select id, s1 ILIKE s2 IS TRUE from operand
select id, s1 ILIKE s2 IS NOT FALSE from operand
select id, s1 ILIKE s2::text from operand
select id, s1::text ILIKE s2 from operand
select id, s1 NOT ILIKE s2 IS NULL from operand
select id, s1 NOT ILIKE s2 IS NOT NULL from operand
select id, s1 NOT ILIKE s2 IS TRUE from operand
select id, s1 NOT ILIKE s2 IS NOT FALSE from operand
select id, s1 NOT ILIKE s2::text from operand
select id, s1::text NOT ILIKE s2 from operand
select id, s1 SIMILAR TO s2 IS NULL from operand
select id, s1 SIMILAR TO s2 IS NOT NULL from operand
select id, s1 SIMILAR TO s2 IS TRUE from operand
select id, s1 SIMILAR TO s2 IS NOT FALSE from operand
select id, s1 SIMILAR TO n2::text from operand
select id, n1::text SIMILAR TO s2 from operand
select id, s1 ~ s2 IS NULL from operand
select id, s1 ~ s2 IS NOT NULL from operand
select id, s1 ~ s2 IS TRUE from operand
select id, s1 ~ s2 IS NOT FALSE from operand
select id, s1 ~ s2::text from operand
select id, n1::text ~ s2 from operand
select id, s1 ~* s2 IS NULL from operand
select id, s1 ~* s2 IS NOT NULL from operand
select id, s1 ~* s2 IS TRUE from operand
select id, s1 ~* s2 IS NOT FALSE from operand
select id, s1 ~* s2::text from operand
select id, n1::text ~* s2 from operand
select id, s1 !~ s2 IS NULL from operand
select id, s1 !~ s2 IS NOT NULL from operand
select id, s1 !~ s2 IS TRUE from operand
select id, s1 !~ s2 IS NOT FALSE from operand
select id, s1 !~ s2::text from operand
select id, n1::text !~ s2 from operand
select id, s1 !~* s2 IS NULL from operand
select id, s1 !~* s2 IS NOT NULL from operand
select id, s1 !~* s2 IS TRUE from operand
select id, s1 !~* s2 IS NOT FALSE from operand
select id, s1 !~* s2::text from operand
select id, n1::text !~* s2 from operand
select id, n1 IS NULL IS DISTINCT FROM b2 from operand
select id, n1 IS NOT NULL IS DISTINCT FROM b2 from operand
select id, b1 IS TRUE IS DISTINCT FROM b2 from operand
select id, b1 IS NOT FALSE IS DISTINCT FROM b2 from operand
select id, n1 IS DISTINCT FROM n2::integer from operand
select id, n1::integer IS DISTINCT FROM n2 from operand
select id, s1 IS DISTINCT FROM n2::text from operand
select id, n1::text IS DISTINCT FROM s2 from operand
select id, - n1 IS NULL from operand
select id, - n1 IS NOT NULL from operand
select id, - n1::integer from operand
select id, NOT n1 IS NULL from operand
select id, NOT n1 IS NOT NULL from operand
select id, NOT b1 IS TRUE from operand
select id, NOT b1 IS NOT FALSE from operand
select id, @ n1 IS NULL from operand
select id, @ n1 IS NOT NULL from operand
select id, @ n1::integer from operand
select id, |/ b1::integer from operand
select id, ||/ n1 IS NULL from operand
select id, ||/ n1 IS NOT NULL from operand
select id, ||/ n1::integer from operand
select id, ~ n1 IS NULL from operand
select id, ~ n1 IS NOT NULL from operand
select id, ~ n1::integer from operand
select id, n1 BETWEEN n2 AND n3 * n1 from operand
select id, n1 * n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 / n1 from operand
select id, n1 / n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 % n1 from operand
select id, n1 % n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 + n1 from operand
select id, n1 + n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 - n1 from operand
select id, n1 - n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 ^ n1 from operand
select id, n1 ^ n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 < b1 from operand
select id, b1 < n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 > b1 from operand
select id, b1 > n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 <= b1 from operand
select id, b1 <= n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 >= b1 from operand
select id, b1 >= n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 = b1 from operand
select id, b1 = n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 != b1 from operand
select id, b1 != n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 << n1 from operand
select id, n1 << n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 >> n1 from operand
select id, n1 >> n2 BETWEEN n2 AND n3 from operand
select id, s1 BETWEEN s2 AND s3 || n1 from operand
select id, n1 || s2 BETWEEN s2 AND s3 from operand
select id, n1 BETWEEN n2 AND n3 & n1 from operand
select id, n1 & n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 | n1 from operand
select id, n1 | n2 BETWEEN n2 AND n3 from operand
select id, n1 BETWEEN n2 AND n3 # n1 from operand
select id, n1 # n2 BETWEEN n2 AND n3 from operand
select id, b1 BETWEEN b2 AND b3 AND b1 from operand
select id, b1 AND n2 BETWEEN n2 AND n3 from operand
select id, b1 OR n2 BETWEEN n2 AND n3 from operand
select id, s1 ~ s2 BETWEEN b2 AND b3 from operand
select id, s1 ~* s2 BETWEEN b2 AND b3 from operand
select id, s1 !~ s2 BETWEEN b2 AND b3 from operand
select id, s1 !~* s2 BETWEEN b2 AND b3 from operand
select id, n1 BETWEEN n2 AND n3 IS DISTINCT FROM b1 from operand
select id, b1 IS DISTINCT FROM n2 BETWEEN n2 AND n3 from operand
