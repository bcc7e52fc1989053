-- Mathematical and trigonometric functions, with each kind of argument.
select id, abs(n) from kind where id != 5 and id != 6
select id, abs(d) from kind where id != 5 and id != 6
select id, abs(f) from kind where id != 5 and id != 6
select id, abs(si) from kind where id != 5 and id != 6
select id, abs(r) from kind where id != 5 and id != 6
select abs(0.5)
select abs(1)
select abs(null)
select abs(1.0e0)
select abs(-2.5)
select abs(2.5)
select abs(-1.5)
select abs(1.5e0)
select abs(2.5e0)
select abs(-2.5e0)
select abs(b) from kind
select abs(0)
select abs(-7)
select id, cbrt(n) from kind where id != 5 and id != 6
select id, cbrt(d) from kind where id != 5 and id != 6
select id, cbrt(f) from kind where id != 5 and id != 6
select id, cbrt(si) from kind where id != 5 and id != 6
select id, cbrt(r) from kind where id != 5 and id != 6
select cbrt(0.5)
select cbrt(1)
select cbrt(null)
select cbrt(1.0e0)
select id, ceil(n) from kind where id != 5 and id != 6
select id, ceil(d) from kind where id != 5 and id != 6
select id, ceil(f) from kind where id != 5 and id != 6
select id, ceil(si) from kind where id != 5 and id != 6
select id, ceil(r) from kind where id != 5 and id != 6
select ceil(0.5)
select ceil(1)
select ceil(null)
select ceil(1.0e0)
select ceil(-2.5)
select ceil(2.5)
select ceil(-1.5)
select ceil(1.5e0)
select ceil(2.5e0)
select ceil(-2.5e0)
select ceil(b) from kind
select ceil(0)
select ceil(-7)
select id, ceiling(n) from kind where id != 5 and id != 6
select id, ceiling(d) from kind where id != 5 and id != 6
select id, ceiling(f) from kind where id != 5 and id != 6
select id, ceiling(si) from kind where id != 5 and id != 6
select id, ceiling(r) from kind where id != 5 and id != 6
select ceiling(0.5)
select ceiling(1)
select ceiling(null)
select ceiling(1.0e0)
select ceiling(-2.5)
select ceiling(2.5)
select ceiling(-1.5)
select ceiling(1.5e0)
select ceiling(2.5e0)
select ceiling(-2.5e0)
select ceiling(b) from kind
select ceiling(0)
select ceiling(-7)
select id, degrees(n) from kind where id != 5 and id != 6
select id, degrees(d) from kind where id != 5 and id != 6
select id, degrees(f) from kind where id != 5 and id != 6
select id, degrees(si) from kind where id != 5 and id != 6
select id, degrees(r) from kind where id != 5 and id != 6
select degrees(0.5)
select degrees(1)
select degrees(null)
select degrees(1.0e0)
select id, exp(n) from kind where id != 5 and id != 6 and n < 100
select id, exp(d) from kind where id != 5 and id != 6 and d < 100
select id, exp(f) from kind where id != 5 and id != 6 and f < 100
select id, exp(si) from kind where id != 5 and id != 6 and si < 100
select id, exp(r) from kind where id != 5 and id != 6 and r < 100
select exp(0.5)
select exp(1)
select exp(null)
select exp(1.0e0)
select id, floor(n) from kind where id != 5 and id != 6
select id, floor(d) from kind where id != 5 and id != 6
select id, floor(f) from kind where id != 5 and id != 6
select id, floor(si) from kind where id != 5 and id != 6
select id, floor(r) from kind where id != 5 and id != 6
select floor(0.5)
select floor(1)
select floor(null)
select floor(1.0e0)
select floor(-2.5)
select floor(2.5)
select floor(-1.5)
select floor(1.5e0)
select floor(2.5e0)
select floor(-2.5e0)
select floor(b) from kind
select floor(0)
select floor(-7)
select id, ln(n) from kind where id != 5 and id != 6 and n > 0
select id, ln(d) from kind where id != 5 and id != 6 and d > 0
select id, ln(f) from kind where id != 5 and id != 6 and f > 0
select id, ln(si) from kind where id != 5 and id != 6 and si > 0
select id, ln(r) from kind where id != 5 and id != 6 and r > 0
select ln(0.5)
select ln(1)
select ln(null)
select ln(1.0e0)
select ln(-1)
select ln(0)
select ln(2)
select id, log(n) from kind where id != 5 and id != 6 and n > 0
select id, log(d) from kind where id != 5 and id != 6 and d > 0
select id, log(f) from kind where id != 5 and id != 6 and f > 0
select id, log(si) from kind where id != 5 and id != 6 and si > 0
select id, log(r) from kind where id != 5 and id != 6 and r > 0
select log(0.5)
select log(1)
select log(null)
select log(1.0e0)
select log(-1)
select log(0)
select log(2)
select id, radians(n) from kind where id != 5 and id != 6
select id, radians(d) from kind where id != 5 and id != 6
select id, radians(f) from kind where id != 5 and id != 6
select id, radians(si) from kind where id != 5 and id != 6
select id, radians(r) from kind where id != 5 and id != 6
select radians(0.5)
select radians(1)
select radians(null)
select radians(1.0e0)
select id, round(n) from kind where id != 5 and id != 6
select id, round(d) from kind where id != 5 and id != 6
select id, round(f) from kind where id != 5 and id != 6
select id, round(si) from kind where id != 5 and id != 6
select id, round(r) from kind where id != 5 and id != 6
select round(0.5)
select round(1)
select round(null)
select round(1.0e0)
select round(-2.5)
select round(2.5)
select round(-1.5)
select round(1.5e0)
select round(2.5e0)
select round(-2.5e0)
select round(b) from kind
select round(0)
select round(-7)
select id, sign(n) from kind where id != 5 and id != 6
select id, sign(d) from kind where id != 5 and id != 6
select id, sign(f) from kind where id != 5 and id != 6
select id, sign(si) from kind where id != 5 and id != 6
select id, sign(r) from kind where id != 5 and id != 6
select sign(0.5)
select sign(1)
select sign(null)
select sign(1.0e0)
select sign(-2.5)
select sign(2.5)
select sign(-1.5)
select sign(1.5e0)
select sign(2.5e0)
select sign(-2.5e0)
select sign(b) from kind
select sign(0)
select sign(-7)
select id, sqrt(n) from kind where id != 5 and id != 6 and n >= 0
select id, sqrt(d) from kind where id != 5 and id != 6 and d >= 0
select id, sqrt(f) from kind where id != 5 and id != 6 and f >= 0
select id, sqrt(si) from kind where id != 5 and id != 6 and si >= 0
select id, sqrt(r) from kind where id != 5 and id != 6 and r >= 0
select sqrt(0.5)
select sqrt(1)
select sqrt(null)
select sqrt(1.0e0)
select sqrt(-1)
select sqrt(0)
select sqrt(2)
select id, trunc(n) from kind where id != 5 and id != 6
select id, trunc(d) from kind where id != 5 and id != 6
select id, trunc(f) from kind where id != 5 and id != 6
select id, trunc(si) from kind where id != 5 and id != 6
select id, trunc(r) from kind where id != 5 and id != 6
select trunc(0.5)
select trunc(1)
select trunc(1.0e0)
select trunc(-2.5)
select trunc(2.5)
select trunc(-1.5)
select trunc(1.5e0)
select trunc(2.5e0)
select trunc(-2.5e0)
select trunc(b) from kind
select trunc(0)
select trunc(-7)
select id, acos(n) from kind where id != 5 and id != 6 and n between -1 and 1
select id, acos(d) from kind where id != 5 and id != 6 and d between -1 and 1
select id, acos(f) from kind where id != 5 and id != 6 and f between -1 and 1
select id, acos(si) from kind where id != 5 and id != 6 and si between -1 and 1
select id, acos(r) from kind where id != 5 and id != 6 and r between -1 and 1
select acos(0.5)
select acos(1)
select acos(null)
select acos(1.0e0)
select acos(-1)
select acos(0)
select acos(2)
select id, asin(n) from kind where id != 5 and id != 6 and n between -1 and 1
select id, asin(d) from kind where id != 5 and id != 6 and d between -1 and 1
select id, asin(f) from kind where id != 5 and id != 6 and f between -1 and 1
select id, asin(si) from kind where id != 5 and id != 6 and si between -1 and 1
select id, asin(r) from kind where id != 5 and id != 6 and r between -1 and 1
select asin(0.5)
select asin(1)
select asin(null)
select asin(1.0e0)
select asin(-1)
select asin(0)
select asin(2)
select id, atan(n) from kind where id != 5 and id != 6
select id, atan(d) from kind where id != 5 and id != 6
select id, atan(f) from kind where id != 5 and id != 6
select id, atan(si) from kind where id != 5 and id != 6
select id, atan(r) from kind where id != 5 and id != 6
select atan(0.5)
select atan(1)
select atan(null)
select atan(1.0e0)
select id, cos(n) from kind where id != 5 and id != 6
select id, cos(d) from kind where id != 5 and id != 6
select id, cos(f) from kind where id != 5 and id != 6
select id, cos(si) from kind where id != 5 and id != 6
select id, cos(r) from kind where id != 5 and id != 6
select cos(0.5)
select cos(1)
select cos(null)
select cos(1.0e0)
select id, cot(n) from kind where id != 5 and id != 6 and n != 0
select id, cot(d) from kind where id != 5 and id != 6 and d != 0
select id, cot(f) from kind where id != 5 and id != 6 and f != 0
select id, cot(si) from kind where id != 5 and id != 6 and si != 0
select id, cot(r) from kind where id != 5 and id != 6 and r != 0
select cot(0.5)
select cot(1)
select cot(null)
select cot(1.0e0)
select cot(-1)
select cot(0)
select cot(2)
select id, sin(n) from kind where id != 5 and id != 6
select id, sin(d) from kind where id != 5 and id != 6
select id, sin(f) from kind where id != 5 and id != 6
select id, sin(si) from kind where id != 5 and id != 6
select id, sin(r) from kind where id != 5 and id != 6
select sin(0.5)
select sin(1)
select sin(null)
select sin(1.0e0)
select id, tan(n) from kind where id != 5 and id != 6
select id, tan(d) from kind where id != 5 and id != 6
select id, tan(f) from kind where id != 5 and id != 6
select id, tan(si) from kind where id != 5 and id != 6
select id, tan(r) from kind where id != 5 and id != 6
select tan(0.5)
select tan(1)
select tan(null)
select tan(1.0e0)
select id, mod(n, 3) from kind where id != 5 and id != 6
select id, mod(n, -3) from kind where id != 5 and id != 6
select id, mod(d, 2) from kind where id != 5 and id != 6
select id, mod(si, 2) from kind where id != 5 and id != 6
select id, mod(b, 7) from kind where id != 5 and id != 6
select id, power(n, 2) from kind where id != 5 and id != 6
select id, power(d, 2) from kind where id != 5 and id != 6
select id, power(f, 2) from kind where id != 5 and id != 6
select id, power(2, si) from kind where id != 5 and id != 6
select id, power(n, 0.5) from kind where id != 5 and id != 6
select id, power(abs(n), 0.5) from kind where id != 5 and id != 6
select id, round(d, 2) from kind where id != 5 and id != 6
select id, round(d, 0) from kind where id != 5 and id != 6
select id, round(d, -1) from kind where id != 5 and id != 6
select id, round(d, 1) from kind where id != 5 and id != 6
select id, trunc(d, 2) from kind where id != 5 and id != 6
select id, trunc(d, 0) from kind where id != 5 and id != 6
select id, trunc(d, -1) from kind where id != 5 and id != 6
select id, trunc(d, 1) from kind where id != 5 and id != 6
select id, atan2(n, si) from kind where id != 5 and id != 6
select id, atan2(f, d) from kind where id != 5 and id != 6
select id, log(2, 8) from kind where id != 5 and id != 6
select id, log(10, 1000) from kind where id != 5 and id != 6
select id, log(2.0, 10) from kind where id != 5 and id != 6
select id, width_bucket(d, 0, 10, 5) from kind where id != 5 and id != 6
select id, width_bucket(f, 0, 10, 5) from kind where id != 5 and id != 6
select id, abs(n) + 1 from kind where id != 5 and id != 6
select id, round(d) + 1 from kind where id != 5 and id != 6
select id, floor(d / 2) from kind where id != 5 and id != 6
select id, ceil(n / 2) from kind where id != 5 and id != 6
select id, ceil(n / 2.0) from kind where id != 5 and id != 6
select id, abs(- n) from kind where id != 5 and id != 6
select id, pi() from kind where id != 5 and id != 6
select id, pi() * n from kind where id != 5 and id != 6
select id, sign(n) * 2 from kind where id != 5 and id != 6
select id, greatest(n, si) from kind where id != 5 and id != 6
select id, least(n, d) from kind where id != 5 and id != 6
select id, greatest(n, null) from kind where id != 5 and id != 6
select id, least(n, null) from kind where id != 5 and id != 6
select id, sqrt(abs(n)) from kind where id != 5 and id != 6
select id, degrees(pi()) from kind where id != 5 and id != 6
select id, radians(180) from kind where id != 5 and id != 6
select id, exp(1) from kind where id != 5 and id != 6
select id, ln(exp(1)) from kind where id != 5 and id != 6
select id, power(0, 0) from kind where id != 5 and id != 6
select id, power(2, -1) from kind where id != 5 and id != 6
select id, power(2.5, 2) from kind where id != 5 and id != 6
select id, power(-8, 3) from kind where id != 5 and id != 6
select id, round(2.567, 1) from kind where id != 5 and id != 6
select id, round(-2.567, 2) from kind where id != 5 and id != 6
select id, round(1234.5, -2) from kind where id != 5 and id != 6
select id, trunc(-2.567, 1) from kind where id != 5 and id != 6
select id, trunc(1234.5, -2) from kind where id != 5 and id != 6
select id, mod(7, 2) from kind where id != 5 and id != 6
select id, mod(-7, 2) from kind where id != 5 and id != 6
select id, mod(7.5, 2) from kind where id != 5 and id != 6
select id, round(0.5) from kind where id != 5 and id != 6
select id, round(1.5) from kind where id != 5 and id != 6
select id, round(-0.5) from kind where id != 5 and id != 6
select id, round(0.5e0) from kind where id != 5 and id != 6
select id, round(1.5e0) from kind where id != 5 and id != 6
select id, round(3.5e0) from kind where id != 5 and id != 6
select id, round(4.5e0) from kind where id != 5 and id != 6
select id, div(7, 2) from kind where id != 5 and id != 6
select id, factorial(5) from kind where id != 5 and id != 6
select id, gcd(12, 18) from kind where id != 5 and id != 6
select id, random() < 1 from kind where id != 5 and id != 6
select id, power(10, 20) from kind where id != 5 and id != 6
select id, exp(10) from kind where id != 5 and id != 6
select id, exp(0) from kind where id != 5 and id != 6
select id, ln(1) from kind where id != 5 and id != 6
select id, log(100) from kind where id != 5 and id != 6
select id, log(1000.0) from kind where id != 5 and id != 6
select id, cbrt(27) from kind where id != 5 and id != 6
select id, cbrt(-27) from kind where id != 5 and id != 6
select id, cbrt(2) from kind where id != 5 and id != 6
select id, sqrt(2) from kind where id != 5 and id != 6
select id, sqrt(16) from kind where id != 5 and id != 6
select mod(1, 0)
select power(0, -1)
select exp(1000)
select log(1, 10)
select ABS(-1)
select Round(2.4)
select setseed(0.5)
select count(*) from kind
select count(n) from kind
select count(distinct ok) from kind
