-- The rows with which the editor of a delivery note opens: the lines of an order on which something is still to come, in
-- their order. The quantity is what is left, in the main unit; the price that of the supplier's list on the day of the
-- order, or, when he listed none, on the day of the note.
--
-- Refusals: ML010 the note does not exist, ML021 the order does not exist.
--
-- in: a_DODKID integer
-- in: a_DDOBID integer

select refuse_unknown_note(:a_DODKID) as refusal;

select refuse('ML021', 'Objednávka', :a_DDOBID) as refusal
where not exists (select 1 from DODOBJEDNAVKA where ID = :a_DDOBID and VZOR = 0);

insert into NOTE_FILL (DOBSID, SKLPID, SKLDID, DPHID, MNOZSTVI, CENA, SLEVA)
select p.ID, p.SKLPID, p.SKLDID, i.DPHID, dec_sub(in_main_unit(p.MNOZSTVI, j.FAKTOR), p.DODANO),
       iif(then_list.CENA is null, now_list.CENA, then_list.CENA),
       iif(then_list.CENA is null, now_list.SLEVA, then_list.SLEVA)
from DODOBJPOL p
join DODOBJEDNAVKA o on o.ID = p.DDOBID
join DODAK d on d.ID = :a_DODKID
join SKLADPOL i on i.ID = p.SKLPID
join SKPL j on j.ID = p.SKPLID
left join PRICE_V then_list
    on then_list.DODVID = d.DODVID and then_list.SKLPID = p.SKLPID
   and date(o.OBJEDNANIDC) between then_list.FIRSTDAY and then_list.LASTDAY
left join PRICE_V now_list
    on now_list.DODVID = d.DODVID and now_list.SKLPID = p.SKLPID
   and d.DATUM between now_list.FIRSTDAY and now_list.LASTDAY
where p.DDOBID = :a_DDOBID and p.KOMPLETNI = 0
order by p.PORADI;

-- include: note-fill
