-- Refuses a choice of stock groups: none at all (ML033), one that does not exist (ML030), one that does not lie under the
-- chosen one above it (ML034). An identifier that is null, 0 or negative leaves its level empty.
create function refuse_groups(group1 integer, group2 integer, group3 integer) returns void
language sql as $$
    select refuse('ML033')
    where greatest(group1, group2, group3, 0) = 0;

    select refuse('ML030', c.LEVEL::text, c.ID::text)
    from (values (1, group1), (2, group2), (3, group3)) c (LEVEL, ID)
    where c.ID > 0 and not exists (select from GROUP_V g where g.LEVEL = c.LEVEL and g.ID = c.ID)
    order by c.LEVEL;

    with CHOSEN (LEVEL, ID) as (
        select * from (values (1, group1), (2, group2), (3, group3)) c (LEVEL, ID) where c.ID > 0
    )
    select refuse('ML034', low.LEVEL::text, low.NAZEV, high.NAZEV)
    from CHOSEN c
    join GROUP_V low on low.LEVEL = c.LEVEL and low.ID = c.ID
    join CHOSEN a on a.LEVEL = (select max(above.LEVEL) from CHOSEN above where above.LEVEL < c.LEVEL)
    join GROUP_V high on high.LEVEL = a.LEVEL and high.ID = a.ID
    where high.ID <> case high.LEVEL when 1 then low.SSP1ID else low.SSP2ID end
    order by c.LEVEL
$$;
