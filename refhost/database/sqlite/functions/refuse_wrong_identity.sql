-- Refuses what is no identity of a save (ML056).
--
-- in: identity

select refuse('ML056', :identity)
where :identity is null or length(:identity) <> 32 or :identity glob '*[^0-9a-f]*';
