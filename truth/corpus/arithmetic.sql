-- Operators of numbers, with each kind of number, NULL and limits.
select id, n * si from kind where id != 5 and id != 6
select id, n * 2 from kind where id != 5 and id != 6
select id, si * si from kind where id != 5 and id != 6
select id, b * n from kind where id != 5 and id != 6
select id, d * n from kind where id != 5 and id != 6
select id, d * d from kind where id != 5 and id != 6
select id, f * n from kind where id != 5 and id != 6
select id, r * f from kind where id != 5 and id != 6
select id, d * 2.5 from kind where id != 5 and id != 6
select id, n * -3 from kind where id != 5 and id != 6
select id, 2 * n from kind where id != 5 and id != 6
select id, n * null from kind where id != 5 and id != 6
select id, f * 0.5 from kind where id != 5 and id != 6
select id, b * 3 from kind where id != 5 and id != 6
select id, d * f from kind where id != 5 and id != 6
select id, n / si from kind where id != 5 and id != 6 and si != 0
select id, n / 2 from kind where id != 5 and id != 6
select id, si / si from kind where id != 5 and id != 6 and si != 0
select id, b / n from kind where id != 5 and id != 6 and n != 0
select id, d / n from kind where id != 5 and id != 6 and n != 0
select id, d / d from kind where id != 5 and id != 6 and d != 0
select id, f / n from kind where id != 5 and id != 6 and n != 0
select id, r / f from kind where id != 5 and id != 6 and f != 0
select id, d / 2.5 from kind where id != 5 and id != 6
select id, n / -3 from kind where id != 5 and id != 6
select id, 2 / n from kind where id != 5 and id != 6 and n != 0
select id, n / null from kind where id != 5 and id != 6
select id, f / 0.5 from kind where id != 5 and id != 6
select id, b / 3 from kind where id != 5 and id != 6
select id, d / f from kind where id != 5 and id != 6 and f != 0
select id, n % si from kind where id != 5 and id != 6 and si != 0
select id, n % 2 from kind where id != 5 and id != 6
select id, si % si from kind where id != 5 and id != 6 and si != 0
select id, b % n from kind where id != 5 and id != 6 and n != 0
select id, d % n from kind where id != 5 and id != 6 and n != 0
select id, d % d from kind where id != 5 and id != 6 and d != 0
select id, d % 2.5 from kind where id != 5 and id != 6
select id, n % -3 from kind where id != 5 and id != 6
select id, 2 % n from kind where id != 5 and id != 6 and n != 0
select id, n % null from kind where id != 5 and id != 6
select id, b % 3 from kind where id != 5 and id != 6
select id, n + si from kind where id != 5 and id != 6
select id, n + 2 from kind where id != 5 and id != 6
select id, si + si from kind where id != 5 and id != 6
select id, b + n from kind where id != 5 and id != 6
select id, d + n from kind where id != 5 and id != 6
select id, d + d from kind where id != 5 and id != 6
select id, f + n from kind where id != 5 and id != 6
select id, r + f from kind where id != 5 and id != 6
select id, d + 2.5 from kind where id != 5 and id != 6
select id, n + -3 from kind where id != 5 and id != 6
select id, 2 + n from kind where id != 5 and id != 6
select id, n + null from kind where id != 5 and id != 6
select id, f + 0.5 from kind where id != 5 and id != 6
select id, b + 3 from kind where id != 5 and id != 6
select id, d + f from kind where id != 5 and id != 6
select id, n - si from kind where id != 5 and id != 6
select id, n - 2 from kind where id != 5 and id != 6
select id, si - si from kind where id != 5 and id != 6
select id, b - n from kind where id != 5 and id != 6
select id, d - n from kind where id != 5 and id != 6
select id, d - d from kind where id != 5 and id != 6
select id, f - n from kind where id != 5 and id != 6
select id, r - f from kind where id != 5 and id != 6
select id, d - 2.5 from kind where id != 5 and id != 6
select id, n - -3 from kind where id != 5 and id != 6
select id, 2 - n from kind where id != 5 and id != 6
select id, n - null from kind where id != 5 and id != 6
select id, f - 0.5 from kind where id != 5 and id != 6
select id, b - 3 from kind where id != 5 and id != 6
select id, d - f from kind where id != 5 and id != 6
select id, n ^ si from kind where id != 5 and id != 6
select id, n ^ 2 from kind where id != 5 and id != 6
select id, si ^ si from kind where id != 5 and id != 6
select id, b ^ n from kind where id != 5 and id != 6
select id, d ^ n from kind where id != 5 and id != 6
select id, d ^ d from kind where id != 5 and id != 6
select id, f ^ n from kind where id != 5 and id != 6
select id, r ^ f from kind where id != 5 and id != 6
select id, d ^ 2.5 from kind where id != 5 and id != 6
select id, n ^ -3 from kind where id != 5 and id != 6
select id, 2 ^ n from kind where id != 5 and id != 6
select id, n ^ null from kind where id != 5 and id != 6
select id, f ^ 0.5 from kind where id != 5 and id != 6
select id, b ^ 3 from kind where id != 5 and id != 6
select id, d ^ f from kind where id != 5 and id != 6
select id, n << 2 from kind where id != 5 and id != 6
select id, si << si from kind where id != 5 and id != 6
select id, b << 3 from kind where id != 5 and id != 6
select id, n << n from kind where id != 5 and id != 6
select id, b << n from kind where id != 5 and id != 6
select id, 7 << si from kind where id != 5 and id != 6
select id, n << null from kind where id != 5 and id != 6
select id, -7 << 2 from kind where id != 5 and id != 6
select id, si << -1 from kind where id != 5 and id != 6
select id, n >> 2 from kind where id != 5 and id != 6
select id, si >> si from kind where id != 5 and id != 6
select id, b >> 3 from kind where id != 5 and id != 6
select id, n >> n from kind where id != 5 and id != 6
select id, b >> n from kind where id != 5 and id != 6
select id, 7 >> si from kind where id != 5 and id != 6
select id, n >> null from kind where id != 5 and id != 6
select id, -7 >> 2 from kind where id != 5 and id != 6
select id, si >> -1 from kind where id != 5 and id != 6
select id, n & 2 from kind where id != 5 and id != 6
select id, si & si from kind where id != 5 and id != 6
select id, b & 3 from kind where id != 5 and id != 6
select id, n & n from kind where id != 5 and id != 6
select id, b & n from kind where id != 5 and id != 6
select id, 7 & si from kind where id != 5 and id != 6
select id, n & null from kind where id != 5 and id != 6
select id, -7 & 2 from kind where id != 5 and id != 6
select id, si & -1 from kind where id != 5 and id != 6
select id, n | 2 from kind where id != 5 and id != 6
select id, si | si from kind where id != 5 and id != 6
select id, b | 3 from kind where id != 5 and id != 6
select id, n | n from kind where id != 5 and id != 6
select id, b | n from kind where id != 5 and id != 6
select id, 7 | si from kind where id != 5 and id != 6
select id, n | null from kind where id != 5 and id != 6
select id, -7 | 2 from kind where id != 5 and id != 6
select id, si | -1 from kind where id != 5 and id != 6
select id, n # 2 from kind where id != 5 and id != 6
select id, si # si from kind where id != 5 and id != 6
select id, b # 3 from kind where id != 5 and id != 6
select id, n # n from kind where id != 5 and id != 6
select id, b # n from kind where id != 5 and id != 6
select id, 7 # si from kind where id != 5 and id != 6
select id, n # null from kind where id != 5 and id != 6
select id, -7 # 2 from kind where id != 5 and id != 6
select id, si # -1 from kind where id != 5 and id != 6
select id, - n from kind where id != 5 and id != 6
select id, - d from kind where id != 5 and id != 6
select id, - f from kind where id != 5 and id != 6
select id, - si from kind where id != 5 and id != 6
select id, - (- n) from kind where id != 5 and id != 6
select id, @ n from kind where id != 5 and id != 6
select id, @ d from kind where id != 5 and id != 6
select id, @ f from kind where id != 5 and id != 6
select id, @ si from kind where id != 5 and id != 6
select id, @ r from kind where id != 5 and id != 6
select id, |/ (@ n) from kind where id != 5 and id != 6
select id, |/ 2.0 from kind where id != 5 and id != 6
select id, |/ 16 from kind where id != 5 and id != 6
select id, ||/ n from kind where id != 5 and id != 6
select id, ||/ 27.0 from kind where id != 5 and id != 6
select id, ||/ (- 8) from kind where id != 5 and id != 6
select id, ||/ 2 from kind where id != 5 and id != 6
select id, ~ n from kind where id != 5 and id != 6
select id, ~ si from kind where id != 5 and id != 6
select id, ~ b from kind where id != 5 and id != 6
select id, ~ 0 from kind where id != 5 and id != 6
select id, @ null from kind where id != 5 and id != 6
-- Constants, whose types are their spellings.
select 7 / 2
select -7 / 2
select 7 / -2
select -7 % 3
select 7 % -3
select 7.0 / 2
select 7 / 2.0
select 1 / 3.0
select 2 / 3.0
select 1e0 / 3
select 10 / 4 * 4
select 10 % 4 * 2
select 2 ^ 10
select 2 ^ 0.5
select 2.0 ^ 3
select -2 ^ 2
select 2 ^ 3 ^ 2
select 2 ^ -1
select 0 ^ 0
select 7.5 % 2
select -7.5 % 2
select 7.25 % 0.5
select 1 / 0
select 1.0 / 0
select 1 % 0
select 0.0 / 0
select 1e308 * 10
select 2147483647 + 1
select 2147483648 + 1
select -2147483648 - 1
select 9223372036854775807 + 1
select 9223372036854775808 + 1
select 99999999999999999999 * 99999999999999999999
select 0.1 + 0.2
select 0.1e0 + 0.2e0
select 1.10 + 2.2
select 1.5 * 1.5
select 1.50 * 2
select 3 * 0.10
select 100 * 1.000
select 1 << 31
select 1 << 32
select 1 << 63
select -1 >> 1
select 1 << -1
select -8 >> 1
select 5 & 3
select 5 | 3
select 5 # 3
select -5 & 3
select -5 | 3
select -5 # 3
select ~ 5
select ~ -5
select ~ 0
select 5 - - 3
select - 5 + 3
select 2 - 3 - 4
select 2 * 3 + 4
select 2 + 3 * 4
select (2 + 3) * 4
select 1 + null
select null / 0
select 1.5 / 0.3
select 22 / 7.000
select 1000000 * 1000000
select 30000 * 2
select 4 / 3 + 4 / 3
select 5 / 2 / 2
select 1e3
select 1e3 + 1
select 1.5e-3
select 123456789012345678
select 1234567890123456789012345678901234567890
select 0.000000001
select .5 + .5
select 5. + 1
select 1e15 * 10
select 1e16 + 1
select 12345678.9 * 1000
select |/ 2
select ||/ 3
select @ -5
select @ -5.5
select 2 * - 3
select |/ 25 + 1
select - 3 ^ 2
select 5 % 3 - 1
select 7 # 2 + 1
select 1 << 2 + 1
select 6 & 3 = 2
-- Limits of the columns.
select id, n + 1 from kind where id > 4
select id, n - 1 from kind where id > 4
select id, n * 2 from kind where id > 4
select id, b + 1 from kind where id > 4
select id, b * 2 from kind where id > 4
select id, si + si from kind where id > 4
select id, - si from kind where id > 4
select id, - n from kind where id > 4
select id, @ n from kind where id > 4
select id, d * d from kind where id > 4
select id, d * 10 from kind where id > 4
select id, f * f from kind where id > 4
select id, f * 1e300 from kind where id > 4
select id, r * r from kind where id > 4
select id, n + 0.5 from kind where id > 4
select id, b + 0.5 from kind where id > 4
select id, b / 2 from kind where id > 4
select id, n / 2 from kind where id > 4
select id, si / 2 from kind where id > 4
select id, n % 10 from kind where id > 4
select id, b % 10 from kind where id > 4
select id, d / 3 from kind where id > 4
select id, f / 3 from kind where id > 4
select id, r / 3 from kind where id > 4
select id, d ^ 2 from kind where id > 4
select id, ~ b from kind where id > 4
select id, n << 1 from kind where id > 4
select id, b >> 1 from kind where id > 4
select id, n & 255 from kind where id > 4
select id, n # -1 from kind where id > 4
