-- The day of now where the company is: see now_moment.

select date(now_moment());
