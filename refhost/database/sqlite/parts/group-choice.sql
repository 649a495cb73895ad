-- Gives the one group that GROUP_SOUGHT names, null for an empty level, or refuses: ML030 there is none, ML031 several
-- have the name, ML032 the text is not the name of the picked one.
--
-- returns: ID

select refuse('ML030', LEVEL, coalesce(TYPED, ID)) as refusal
from GROUP_SOUGHT s
where coalesce(TYPED, ID) is not null
  and not exists (select 1
                  from GROUP_V g
                  where g.LEVEL = s.LEVEL and (g.ID = s.ID or (s.ID is null and lower(g.NAZEV) = lower(s.TYPED))));

select refuse('ML032', s.TYPED, g.NAZEV) as refusal
from GROUP_SOUGHT s
join GROUP_V g on g.LEVEL = s.LEVEL and g.ID = s.ID
where lower(s.TYPED) <> lower(g.NAZEV);

select refuse('ML031', s.TYPED, s.LEVEL) as refusal
from GROUP_SOUGHT s
where s.ID is null
  and (select count(*) from GROUP_V g where g.LEVEL = s.LEVEL and lower(g.NAZEV) = lower(s.TYPED)) > 1;

select coalesce(s.ID, (select g.ID from GROUP_V g where g.LEVEL = s.LEVEL and lower(g.NAZEV) = lower(s.TYPED))) as ID
from GROUP_SOUGHT s;
